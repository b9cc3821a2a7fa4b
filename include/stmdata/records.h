/* The records that cross the boundary of the library, byte for byte.

   All integers are little-endian. With 32-bit pointers there are no gaps but the reserved fields
   named below; with 64-bit pointers the fields and their order are the same, each pointer stands at
   a multiple of 8, and so does the end of a record that has one. A record without pointers is one
   and the same for both. The assertions under each record prove it. Comments show a field's offset;
   where there are two, the first is that with 32-bit pointers. Plain C99 and later, and C++. */
#ifndef STMDATA_RECORDS_H
#define STMDATA_RECORDS_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
#define STM_ASSERT_LAYOUT(name, condition) static_assert(condition, #name)
extern "C" {
#else
#define STM_ASSERT_LAYOUT(name, condition) typedef char stm_assert_##name[(condition) ? 1 : -1]
#endif

/* What holds with 32-bit pointers, and with 64-bit ones. */
#define STM_EITHER(with32, with64) (sizeof(void*) == 4 ? (with32) : (with64))
STM_ASSERT_LAYOUT(pointers_are_32_or_64_bits_wide, sizeof(void*) == STM_EITHER(4, 8));

/* STM_AT(record, field, offset, width): the field stands at this byte and has this many bytes. */
#define STM_AT(record, field, offset, width)                                         \
  STM_ASSERT_LAYOUT(record##_##field, offsetof(record, field) == (size_t)(offset) && \
                                          sizeof(((record*)0)->field) == (size_t)(width))
#define STM_SIZE(record, bytes) STM_ASSERT_LAYOUT(record##_size, sizeof(record) == (size_t)(bytes))

/* Information groups: which parts of a record the query requests, a reply delivers, a conversion
   copies or the comparison compares. */
enum {
  GroupStatus = 0x2,        /* online, error, printing and response flags */
  GroupModelInfo = 0x4,     /* model name, maker, version text, number */
  GroupTrays = 0x8,         /* input trays: paper size and level */
  GroupBins = 0x10,         /* output bins */
  GroupDuplex = 0x20,       /* option code 1 alone */
  GroupEmulation = 0x100,   /* printer languages */
  GroupFonts = 0x200,       /* resident fonts */
  GroupDeviceId = 0x400,    /* what the IEEE 1284 Device ID tells */
  GroupOptions = 0x20000,   /* optional units */
  GroupStatusList = 0x80000 /* status codes */
};

/* Values of PatGetError. */
enum {
  PatErrorNone = 0,
  PatErrorNotFound = 1,   /* no row for the code, or nothing to look at */
  PatErrorNullRecord = 2, /* a null record, or a null row or name buffer */
  PatErrorText = 3,       /* the text cannot be loaded or is empty, or has no buffer */
  PatErrorPicture = 5     /* the picture was not produced */
};

/* Codes with a meaning of their own in the fields below. */
enum {
  StatusPrinting = 100,                 /* status: printing, nothing serious pending */
  StatusNoResponse = 102,               /* status: the printer does not answer */
  StatusSeveralMarker = 107,            /* low byte of PrnInfo.statusCode: look at statusList */
  TrayBypass = 1,                       /* tray ids: 2 multi-purpose tray, 3 to 7 trays 1 to 5 */
  PaperNone = 1,                        /* paper code of a tray without paper */
  PaperTrayMissing = 41,                /* paper code of a tray that is not in place */
  OptionDuplex = 1,                     /* option code of the duplex unit */
  ModelUnknown = 255,                   /* model code */
  BinUnknown = 255,                     /* output bin id */
  PrnInfoExTag = 404,                   /* PrnInfoEx.recordTag */
  PrnInfoExSize = STM_EITHER(112, 176), /* PrnInfoEx.structSize */
  PrnInfoSize = 2400                    /* PrnInfo.structSize */
};

/* Marks an absent number, count or flag word in the print manager's records, and a field of
   PrnInfoEx that the comparison skips. */
#define STM_ABSENT 0xFFFFFFFFu

/* Marks an absent pointer in the print manager's records and an absent text of PrnInfoEx, as null
   does: all ones of its width. To be converted to the pointer's type. */
#define STM_ABSENT_POINTER UINTPTR_MAX

/* ---- Item nodes ------------------------------------------------------------------------------
   Singly linked lists. Each node is a zero-filled block of its own from GlobalAlloc(64, size);
   `next` is null at the tail, `nodeSize` is the size in bytes. */

typedef struct StatusNode { /* 272 or 280 bytes */
  struct StatusNode* next;  /*  0  0 */
  uint32_t nodeSize;        /*  4  8 */
  uint16_t code;            /*  8 12  status code */
  uint8_t reserved[262];    /* 10 14 */
} StatusNode;
STM_AT(StatusNode, next, 0, sizeof(void*));
STM_AT(StatusNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(StatusNode, code, STM_EITHER(8, 12), 2);
STM_AT(StatusNode, reserved, STM_EITHER(10, 14), 262);
STM_SIZE(StatusNode, STM_EITHER(272, 280));

typedef struct TrayNode { /* 20 or 24 bytes */
  struct TrayNode* next;  /*  0  0 */
  uint32_t nodeSize;      /*  4  8 */
  uint16_t trayId;        /*  8 12  1 bypass, 2 multi-purpose, 3 to 7 trays 1 to 5, 10 "MultiA4" */
  uint16_t paperCode;     /* 10 14  0 to 41, 50 to 54; 1 no paper, 41 tray missing */
  uint16_t paperLevel;    /* 12 16  as the printer reports it; per cent from the print manager */
  uint8_t reserved[6];    /* 14 18 */
} TrayNode;
STM_AT(TrayNode, next, 0, sizeof(void*));
STM_AT(TrayNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(TrayNode, trayId, STM_EITHER(8, 12), 2);
STM_AT(TrayNode, paperCode, STM_EITHER(10, 14), 2);
STM_AT(TrayNode, paperLevel, STM_EITHER(12, 16), 2);
STM_AT(TrayNode, reserved, STM_EITHER(14, 18), 6);
STM_SIZE(TrayNode, STM_EITHER(20, 24));

typedef struct BinNode { /* 12 or 16 bytes */
  struct BinNode* next;  /*  0  0 */
  uint32_t nodeSize;     /*  4  8 */
  uint16_t binId;        /*  8 12  1 to 15, 255 unknown */
  uint16_t binState;     /* 10 14  as the printer reports it; from the print manager 1 or 2 */
} BinNode;
STM_AT(BinNode, next, 0, sizeof(void*));
STM_AT(BinNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(BinNode, binId, STM_EITHER(8, 12), 2);
STM_AT(BinNode, binState, STM_EITHER(10, 14), 2);
STM_SIZE(BinNode, STM_EITHER(12, 16));

typedef struct OptionNode { /* 12 or 16 bytes */
  struct OptionNode* next;  /*  0  0 */
  uint32_t nodeSize;        /*  4  8 */
  uint16_t optionCode;      /*  8 12  1 duplex unit, 2 to 17, 101 to 106; 0 selects nothing */
  uint16_t optionValue;     /* 10 14 */
} OptionNode;
STM_AT(OptionNode, next, 0, sizeof(void*));
STM_AT(OptionNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(OptionNode, optionCode, STM_EITHER(8, 12), 2);
STM_AT(OptionNode, optionValue, STM_EITHER(10, 14), 2);
STM_SIZE(OptionNode, STM_EITHER(12, 16));

typedef struct FontNode { /* 12 or 16 bytes */
  struct FontNode* next;  /*  0  0 */
  uint32_t nodeSize;      /*  4  8 */
  uint16_t fontCode;      /*  8 12  1 to 20 */
  uint16_t reserved;      /* 10 14 */
} FontNode;
STM_AT(FontNode, next, 0, sizeof(void*));
STM_AT(FontNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(FontNode, fontCode, STM_EITHER(8, 12), 2);
STM_AT(FontNode, reserved, STM_EITHER(10, 14), 2);
STM_SIZE(FontNode, STM_EITHER(12, 16));

typedef struct EmulationNode { /* 28 or 32 bytes */
  struct EmulationNode* next;  /*  0  0 */
  uint32_t nodeSize;           /*  4  8 */
  uint16_t emulationCode;      /*  8 12  1 to 14, 0 unknown */
  uint8_t reserved[18];        /* 10 14 */
} EmulationNode;
STM_AT(EmulationNode, next, 0, sizeof(void*));
STM_AT(EmulationNode, nodeSize, STM_EITHER(4, 8), 4);
STM_AT(EmulationNode, emulationCode, STM_EITHER(8, 12), 2);
STM_AT(EmulationNode, reserved, STM_EITHER(10, 14), 18);
STM_SIZE(EmulationNode, STM_EITHER(28, 32));

/* ---- The list-based record -------------------------------------------------------------------
   Zero-filled before the first use. Every string and node is a GlobalAlloc block of its own that
   belongs to the record's owner; the library releases a block only when it replaces it. A string is
   absent when its pointer is null or all-ones. Lists are read for 65,536 nodes at most; one of
   so many nodes, or that leads back into itself, is never released: it stays its maker's. */
typedef struct PrnInfoEx {      /* 112 or 176 bytes */
  uint32_t recordTag;           /*   0   0  PrnInfoExTag; the readback parser leaves it alone */
  uint32_t structSize;          /*   4   4  PrnInfoExSize */
  uint32_t statusCount;         /*   8   8 */
  StatusNode* statusList;       /*  12  16 */
  char* modelName;              /*  16  24  NUL-terminated, own block (likewise all strings here) */
  char* manufacturer;           /*  20  32 */
  char* description;            /*  24  40 */
  char* versionText1;           /*  28  48  at most 6 characters in a 7-byte block, from a reply */
  char* versionText2;           /*  32  56 */
  char* versionText3;           /*  36  64 */
  uint32_t modelInfoNumber;     /*  40  72 */
  uint8_t offline;              /*  44  76  1 offline; print manager only */
  uint8_t modelCode;            /*  45  77  255 unknown */
  uint8_t online;               /*  46  78  1 online */
  uint8_t hasError;             /*  47  79  1 when a status or a state bit is an error */
  uint8_t printing;             /*  48  80  1 printing; print manager only */
  uint8_t noResponse;           /*  49  81  1 no response; print manager only */
  uint8_t reserved1[2];         /*  50  82 */
  uint32_t emulationCode;       /*  52  84  printer language in use; STM_ABSENT is not compared */
  uint32_t emulationCount;      /*  56  88 */
  EmulationNode* emulationList; /*  60  96 */
  uint32_t fontCount;           /*  64 104 */
  FontNode* fontList;           /*  68 112 */
  uint32_t currentTray;         /*  72 120  tray id in use; STM_ABSENT is not compared */
  uint32_t trayCount;           /*  76 124 */
  TrayNode* trayList;           /*  80 128 */
  uint32_t currentBin;          /*  84 136  bin id in use, 0 none told; print manager: position; */
                                /*          STM_ABSENT is not compared */
  uint32_t binCount;            /*  88 140 */
  BinNode* binList;             /*  92 144 */
  uint32_t optionCount;         /*  96 152  options; a reply does not count nodes of code 0 */
  OptionNode* optionList;       /* 100 160 */
  uint8_t reserved2[8];         /* 104 168 */
} PrnInfoEx;
STM_AT(PrnInfoEx, recordTag, 0, 4);
STM_AT(PrnInfoEx, structSize, 4, 4);
STM_AT(PrnInfoEx, statusCount, 8, 4);
STM_AT(PrnInfoEx, statusList, STM_EITHER(12, 16), sizeof(void*));
STM_AT(PrnInfoEx, modelName, STM_EITHER(16, 24), sizeof(void*));
STM_AT(PrnInfoEx, manufacturer, STM_EITHER(20, 32), sizeof(void*));
STM_AT(PrnInfoEx, description, STM_EITHER(24, 40), sizeof(void*));
STM_AT(PrnInfoEx, versionText1, STM_EITHER(28, 48), sizeof(void*));
STM_AT(PrnInfoEx, versionText2, STM_EITHER(32, 56), sizeof(void*));
STM_AT(PrnInfoEx, versionText3, STM_EITHER(36, 64), sizeof(void*));
STM_AT(PrnInfoEx, modelInfoNumber, STM_EITHER(40, 72), 4);
STM_AT(PrnInfoEx, offline, STM_EITHER(44, 76), 1);
STM_AT(PrnInfoEx, modelCode, STM_EITHER(45, 77), 1);
STM_AT(PrnInfoEx, online, STM_EITHER(46, 78), 1);
STM_AT(PrnInfoEx, hasError, STM_EITHER(47, 79), 1);
STM_AT(PrnInfoEx, printing, STM_EITHER(48, 80), 1);
STM_AT(PrnInfoEx, noResponse, STM_EITHER(49, 81), 1);
STM_AT(PrnInfoEx, reserved1, STM_EITHER(50, 82), 2);
STM_AT(PrnInfoEx, emulationCode, STM_EITHER(52, 84), 4);
STM_AT(PrnInfoEx, emulationCount, STM_EITHER(56, 88), 4);
STM_AT(PrnInfoEx, emulationList, STM_EITHER(60, 96), sizeof(void*));
STM_AT(PrnInfoEx, fontCount, STM_EITHER(64, 104), 4);
STM_AT(PrnInfoEx, fontList, STM_EITHER(68, 112), sizeof(void*));
STM_AT(PrnInfoEx, currentTray, STM_EITHER(72, 120), 4);
STM_AT(PrnInfoEx, trayCount, STM_EITHER(76, 124), 4);
STM_AT(PrnInfoEx, trayList, STM_EITHER(80, 128), sizeof(void*));
STM_AT(PrnInfoEx, currentBin, STM_EITHER(84, 136), 4);
STM_AT(PrnInfoEx, binCount, STM_EITHER(88, 140), 4);
STM_AT(PrnInfoEx, binList, STM_EITHER(92, 144), sizeof(void*));
STM_AT(PrnInfoEx, optionCount, STM_EITHER(96, 152), 4);
STM_AT(PrnInfoEx, optionList, STM_EITHER(100, 160), sizeof(void*));
STM_AT(PrnInfoEx, reserved2, STM_EITHER(104, 168), 8);
STM_SIZE(PrnInfoEx, STM_EITHER(112, 176));

/* A PrnInfoEx whose Device ID fields are filled; not a layout of its own. */
typedef PrnInfoEx ModelInfoEx;

/* ---- The flat record -------------------------------------------------------------------------
   Arrays are in place. A count may exceed its array's capacity when the printer reported more; only
   the capacity is stored, and no reader may go past it. */
typedef struct TrayPaper {
  uint32_t trayId;    /*   0 */
  uint32_t paperCode; /*   4 */
} TrayPaper;
STM_AT(TrayPaper, trayId, 0, 4);
STM_AT(TrayPaper, paperCode, 4, 4);
STM_SIZE(TrayPaper, 8);

typedef struct TrayLevel {
  uint32_t trayId;     /*   0 */
  uint32_t paperLevel; /*   4 */
} TrayLevel;
STM_AT(TrayLevel, trayId, 0, 4);
STM_AT(TrayLevel, paperLevel, 4, 4);
STM_SIZE(TrayLevel, 8);

typedef struct BinEntry {
  uint32_t binId;    /*   0 */
  uint32_t binState; /*   4  as in BinNode; from network lists 0 to 2 */
} BinEntry;
STM_AT(BinEntry, binId, 0, 4);
STM_AT(BinEntry, binState, 4, 4);
STM_SIZE(BinEntry, 8);

typedef struct PrnInfo {       /* 2400 bytes */
  uint32_t statusCode;         /*    0  one code, or (sum of codes << 16) | 107 */
  uint32_t offline;            /*    4  1 offline */
  uint32_t currentTray;        /*    8  tray id in use; the print manager's own number from there */
  uint32_t hasDuplex;          /*   12  1 with the duplex unit (option code 1) */
  uint32_t modelInfoNumber;    /*   16 */
  char versionText1[16];       /*   20 */
  char versionText2[16];       /*   36 */
  char versionText3[16];       /*   52 */
  uint32_t emulationCode;      /*   68  printer language in use; the print manager's own number */
  uint32_t emulationList[32];  /*   72 */
  uint32_t emulationCount;     /*  200 */
  uint32_t fontList[32];       /*  204 */
  uint32_t fontCount;          /*  332 */
  TrayPaper trayList[64];      /*  336 */
  uint32_t trayCount;          /*  848 */
  char modelName[256];         /*  852 */
  char manufacturer[16];       /* 1108  at most 15 characters */
  char description[256];       /* 1124 */
  uint8_t modelCode;           /* 1380  255 unknown */
  uint8_t online;              /* 1381 */
  uint8_t hasError;            /* 1382 */
  uint8_t printing;            /* 1383 */
  uint32_t structSize;         /* 1384  2400 */
  uint32_t option4Present;     /* 1388  1 when option code 4 is listed */
  uint32_t option5Present;     /* 1392  1 when option code 5 is listed */
  uint32_t option6Present;     /* 1396  1 when option code 6 is listed */
  uint8_t reserved1[24];       /* 1400 */
  TrayLevel trayLevelList[16]; /* 1424 */
  uint32_t trayLevelCount;     /* 1552 */
  BinEntry binList[16];        /* 1556 */
  uint32_t binCount;           /* 1684 */
  uint32_t duplexFlag;         /* 1688  readback: 1 when option code 1 is listed */
  uint32_t option2Flag; /* 1692  readback: 3 option code 2, 1 option code 3; network: 1 disk */
  uint32_t option3Flag; /* 1696  network lists only */
  uint32_t option4Flag; /* 1700  1 when option code 4 is listed */
  /* From a network bin list: optionBits1 0x1 bin 1, 0x2 bin 3, 0x4 bin 4 without 5; optionBits2
     0x1 bin 2, 0x2 bin 7. */
  uint32_t optionBits1;    /* 1704  0x1 option 5, 0x2 option 6, 0x4 option 9, 0x8 option 10 */
  uint32_t optionBits2;    /* 1708  0x1 option 7, 0x2 option 8 or 15, 0x4 option 13 */
  uint32_t finisherBits;   /* 1712  0x1 stapler (option 11), 0x2 puncher (option 12) */
  uint32_t currentBin;     /* 1716  output bin id in use; the print manager's own number */
  uint32_t statusList[32]; /* 1720 */
  uint32_t statusCount;    /* 1848 */
  uint8_t reserved2[4];    /* 1852 */
  uint32_t noResponse;     /* 1856  1 no response; print manager only */
  uint8_t reserved3[540];  /* 1860 */
} PrnInfo;
STM_AT(PrnInfo, statusCode, 0, 4);
STM_AT(PrnInfo, offline, 4, 4);
STM_AT(PrnInfo, currentTray, 8, 4);
STM_AT(PrnInfo, hasDuplex, 12, 4);
STM_AT(PrnInfo, modelInfoNumber, 16, 4);
STM_AT(PrnInfo, versionText1, 20, 16);
STM_AT(PrnInfo, versionText2, 36, 16);
STM_AT(PrnInfo, versionText3, 52, 16);
STM_AT(PrnInfo, emulationCode, 68, 4);
STM_AT(PrnInfo, emulationList, 72, 128);
STM_AT(PrnInfo, emulationCount, 200, 4);
STM_AT(PrnInfo, fontList, 204, 128);
STM_AT(PrnInfo, fontCount, 332, 4);
STM_AT(PrnInfo, trayList, 336, 512);
STM_AT(PrnInfo, trayCount, 848, 4);
STM_AT(PrnInfo, modelName, 852, 256);
STM_AT(PrnInfo, manufacturer, 1108, 16);
STM_AT(PrnInfo, description, 1124, 256);
STM_AT(PrnInfo, modelCode, 1380, 1);
STM_AT(PrnInfo, online, 1381, 1);
STM_AT(PrnInfo, hasError, 1382, 1);
STM_AT(PrnInfo, printing, 1383, 1);
STM_AT(PrnInfo, structSize, 1384, 4);
STM_AT(PrnInfo, option4Present, 1388, 4);
STM_AT(PrnInfo, option5Present, 1392, 4);
STM_AT(PrnInfo, option6Present, 1396, 4);
STM_AT(PrnInfo, reserved1, 1400, 24);
STM_AT(PrnInfo, trayLevelList, 1424, 128);
STM_AT(PrnInfo, trayLevelCount, 1552, 4);
STM_AT(PrnInfo, binList, 1556, 128);
STM_AT(PrnInfo, binCount, 1684, 4);
STM_AT(PrnInfo, duplexFlag, 1688, 4);
STM_AT(PrnInfo, option2Flag, 1692, 4);
STM_AT(PrnInfo, option3Flag, 1696, 4);
STM_AT(PrnInfo, option4Flag, 1700, 4);
STM_AT(PrnInfo, optionBits1, 1704, 4);
STM_AT(PrnInfo, optionBits2, 1708, 4);
STM_AT(PrnInfo, finisherBits, 1712, 4);
STM_AT(PrnInfo, currentBin, 1716, 4);
STM_AT(PrnInfo, statusList, 1720, 128);
STM_AT(PrnInfo, statusCount, 1848, 4);
STM_AT(PrnInfo, reserved2, 1852, 4);
STM_AT(PrnInfo, noResponse, 1856, 4);
STM_AT(PrnInfo, reserved3, 1860, 540);
STM_SIZE(PrnInfo, 2400);

/* ---- Results of the status and picture questions --------------------------------------------- */

typedef struct StatusRow { /* 16 bytes */
  uint32_t code;           /*   0  status code */
  uint32_t simpleId;       /*   4  string id of the short text */
  uint32_t level;          /*   8  1 ready or reminder, 2 near end or waiting, 3 the rest */
  uint32_t detailId;       /*  12  string id of the detail text */
} StatusRow;
STM_AT(StatusRow, code, 0, 4);
STM_AT(StatusRow, simpleId, 4, 4);
STM_AT(StatusRow, level, 8, 4);
STM_AT(StatusRow, detailId, 12, 4);
STM_SIZE(StatusRow, 16);

typedef struct PrnPart {  /* 12 or 16 bytes */
  const char* bitmapName; /*  0  0  resource name, in the library's constant data */
  uint32_t ropSet;        /*  4  8  raster operation when its flag is set */
  uint32_t ropClear;      /*  8 12  raster operation when its flag is clear */
} PrnPart;
STM_AT(PrnPart, bitmapName, 0, sizeof(void*));
STM_AT(PrnPart, ropSet, STM_EITHER(4, 8), 4);
STM_AT(PrnPart, ropClear, STM_EITHER(8, 12), 4);
STM_SIZE(PrnPart, STM_EITHER(12, 16));

typedef struct PrnBitmap {    /* 36 bytes */
  uint8_t reserved[4];        /*   0  neither read nor written */
  uint8_t partCodes[16];      /*   4  1 to 67 in drawing order, 0 for an empty slot */
  uint8_t extraPartCodes[16]; /*  20  cleared; carries nothing */
} PrnBitmap;
STM_AT(PrnBitmap, reserved, 0, 4);
STM_AT(PrnBitmap, partCodes, 4, 16);
STM_AT(PrnBitmap, extraPartCodes, 20, 16);
STM_SIZE(PrnBitmap, 36);

typedef struct PatVersionInfo { /* 28 bytes */
  uint32_t reserved;            /*   0  the caller's; not written */
  uint32_t versionWord1;        /*   4 */
  uint32_t versionWord2;        /*   8 */
  uint32_t versionWord3;        /*  12 */
  uint32_t versionWord4;        /*  16 */
  uint32_t versionWord5;        /*  20 */
  uint32_t versionWord6;        /*  24 */
} PatVersionInfo;
STM_AT(PatVersionInfo, reserved, 0, 4);
STM_AT(PatVersionInfo, versionWord1, 4, 4);
STM_AT(PatVersionInfo, versionWord2, 8, 4);
STM_AT(PatVersionInfo, versionWord3, 12, 4);
STM_AT(PatVersionInfo, versionWord4, 16, 4);
STM_AT(PatVersionInfo, versionWord5, 20, 4);
STM_AT(PatVersionInfo, versionWord6, 24, 4);
STM_SIZE(PatVersionInfo, 28);

/* ---- The print manager's record --------------------------------------------------------------
   Built by the caller, only read by the library. A string, sub-record or item array is present when
   its pointer is neither null nor all-ones; numbers are absent when all-ones. */

typedef struct PMStatusInfo { /* 8 bytes */
  uint32_t statusBits;        /*   0  PMStatus... bits */
  uint32_t netStatus;         /*   4  a status value for PatGetStatusFromNet */
} PMStatusInfo;
STM_AT(PMStatusInfo, statusBits, 0, 4);
STM_AT(PMStatusInfo, netStatus, 4, 4);
STM_SIZE(PMStatusInfo, 8);

enum {
  PMStatusOffline = 0x00000001,
  PMStatusErrorMask = 0x0000007E, /* any of these six: an error */
  PMStatusWarmingUp = 0x00000080, /* status code 17 */
  PMStatusPrinting = 0x00020000,
  PMStatusEnergySaver = 0x00040000, /* status code 18 */
  PMStatusNoResponse = 0x01000000
};

typedef struct PMModelInfo { /* 12 or 24 bytes */
  const char* modelName;     /*  0  0 */
  const char* versionText;   /*  4  8  the first version text */
  uint32_t number;           /*  8 16 */
} PMModelInfo;
STM_AT(PMModelInfo, modelName, 0, sizeof(void*));
STM_AT(PMModelInfo, versionText, STM_EITHER(4, 8), sizeof(void*));
STM_AT(PMModelInfo, number, STM_EITHER(8, 16), 4);
STM_SIZE(PMModelInfo, STM_EITHER(12, 24));

typedef struct PMItemGroup { /* 12 or 24 bytes */
  uint32_t count;            /*  0  0  number of items */
  const void* const* items;  /*  4  8  `count` pointers to PMInputTray, PMOutputBin, ... */
  uint32_t current;          /*  8 16  the item in use: trays and bins from 1, languages from 0 */
} PMItemGroup;
STM_AT(PMItemGroup, count, 0, 4);
STM_AT(PMItemGroup, items, STM_EITHER(4, 8), sizeof(void*));
STM_AT(PMItemGroup, current, STM_EITHER(8, 16), 4);
STM_SIZE(PMItemGroup, STM_EITHER(12, 24));

/* levelFlags, the first that holds: 0x12 gives level 0, 0x100 10, 0x200 25, 0x400 50, 0x800 75,
   else and when absent 100 per cent. */
typedef struct PMInputTray { /* 28 or 40 bytes */
  const char* name;          /*  0  0 */
  uint32_t levelFlags;       /*  4  8 */
  uint32_t reserved;         /*  8 12  not read */
  const char* paperName;     /* 12 16 */
  const char* altName;       /* 16 24  tried when `name` is absent */
  uint32_t paperWidth;       /* 20 32  millimetres */
  uint32_t paperLength;      /* 24 36  millimetres */
} PMInputTray;
STM_AT(PMInputTray, name, 0, sizeof(void*));
STM_AT(PMInputTray, levelFlags, STM_EITHER(4, 8), 4);
STM_AT(PMInputTray, reserved, STM_EITHER(8, 12), 4);
STM_AT(PMInputTray, paperName, STM_EITHER(12, 16), sizeof(void*));
STM_AT(PMInputTray, altName, STM_EITHER(16, 24), sizeof(void*));
STM_AT(PMInputTray, paperWidth, STM_EITHER(20, 32), 4);
STM_AT(PMInputTray, paperLength, STM_EITHER(24, 36), 4);
STM_SIZE(PMInputTray, STM_EITHER(28, 40));

typedef struct PMOutputBin { /* 12 or 24 bytes */
  const char* name;          /*  0  0 */
  uint32_t stateFlags;       /*  4  8  bit 0 selects bin state 2 */
  const char* altName;       /*  8 16  tried when `name` is absent */
} PMOutputBin;
STM_AT(PMOutputBin, name, 0, sizeof(void*));
STM_AT(PMOutputBin, stateFlags, STM_EITHER(4, 8), 4);
STM_AT(PMOutputBin, altName, STM_EITHER(8, 16), sizeof(void*));
STM_SIZE(PMOutputBin, STM_EITHER(12, 24));

typedef struct PMEmulation { /* 12 or 24 bytes */
  const char* name;          /*  0  0 */
  const char* versionText;   /*  4  8 */
  const char* altName;       /*  8 16  tried when `name` is absent */
} PMEmulation;
STM_AT(PMEmulation, name, 0, sizeof(void*));
STM_AT(PMEmulation, versionText, STM_EITHER(4, 8), sizeof(void*));
STM_AT(PMEmulation, altName, STM_EITHER(8, 16), sizeof(void*));
STM_SIZE(PMEmulation, STM_EITHER(12, 24));

typedef struct PMFont { /* 4 or 8 bytes */
  const char* name;     /*  0  0 */
} PMFont;
STM_AT(PMFont, name, 0, sizeof(void*));
STM_SIZE(PMFont, STM_EITHER(4, 8));

typedef struct PMOption { /* 4 bytes */
  uint32_t deviceCode;    /*   0  163 option tray, 164 duplex unit */
} PMOption;
STM_AT(PMOption, deviceCode, 0, 4);
STM_SIZE(PMOption, 4);

typedef struct PMStatusItem { /* 8 bytes */
  uint32_t reserved;          /*   0  not read */
  uint32_t code;              /*   4  a status code */
} PMStatusItem;
STM_AT(PMStatusItem, reserved, 0, 4);
STM_AT(PMStatusItem, code, 4, 4);
STM_SIZE(PMStatusItem, 8);

typedef struct PMPrnInfo {           /* 68 or 112 bytes are read at most */
  uint32_t reserved1;                /*   0   0  not read (likewise all reserved fields) */
  const PMStatusInfo* statusInfo;    /*   4   8  groups 0x2 and 0x80000 */
  const PMModelInfo* modelInfo;      /*   8  16  group 0x4 */
  const PMItemGroup* inputTrayInfo;  /*  12  24  group 0x8, PMInputTray */
  const PMItemGroup* outputBinInfo;  /*  16  32  group 0x10, PMOutputBin */
  uint32_t reserved2[3];             /*  20  40 */
  const PMItemGroup* fontInfo;       /*  32  56  group 0x200, PMFont */
  const PMItemGroup* emulationInfo;  /*  36  64  group 0x100, PMEmulation */
  uint32_t reserved3[4];             /*  40  72 */
  const PMItemGroup* optionInfo;     /*  56  88  group 0x20000, PMOption */
  uint32_t reserved4;                /*  60  96 */
  const PMItemGroup* statusListInfo; /*  64 104  group 0x80000, PMStatusItem */
} PMPrnInfo;
STM_AT(PMPrnInfo, reserved1, 0, 4);
STM_AT(PMPrnInfo, statusInfo, STM_EITHER(4, 8), sizeof(void*));
STM_AT(PMPrnInfo, modelInfo, STM_EITHER(8, 16), sizeof(void*));
STM_AT(PMPrnInfo, inputTrayInfo, STM_EITHER(12, 24), sizeof(void*));
STM_AT(PMPrnInfo, outputBinInfo, STM_EITHER(16, 32), sizeof(void*));
STM_AT(PMPrnInfo, reserved2, STM_EITHER(20, 40), 12);
STM_AT(PMPrnInfo, fontInfo, STM_EITHER(32, 56), sizeof(void*));
STM_AT(PMPrnInfo, emulationInfo, STM_EITHER(36, 64), sizeof(void*));
STM_AT(PMPrnInfo, reserved3, STM_EITHER(40, 72), 16);
STM_AT(PMPrnInfo, optionInfo, STM_EITHER(56, 88), sizeof(void*));
STM_AT(PMPrnInfo, reserved4, STM_EITHER(60, 96), 4);
STM_AT(PMPrnInfo, statusListInfo, STM_EITHER(64, 104), sizeof(void*));
STM_SIZE(PMPrnInfo, STM_EITHER(68, 112));

/* ---- The network layer's lists ---------------------------------------------------------------
   Built by the caller, only read by the library. A null entry pointer is an absent entry. */

/* flags, the first that holds: 0x2 gives level 1 (no paper), 0x4 41 (tray missing), 0x100 and 0x200
   25, 0x400 50, 0x800 75, else 100 per cent. */
typedef struct NetTrayEntry { /* 12 or 24 bytes */
  const char* name;           /*  0  0 */
  uint32_t flags;             /*  4  8 */
  const char* mediaName;      /*  8 16 */
} NetTrayEntry;
STM_AT(NetTrayEntry, name, 0, sizeof(void*));
STM_AT(NetTrayEntry, flags, STM_EITHER(4, 8), 4);
STM_AT(NetTrayEntry, mediaName, STM_EITHER(8, 16), sizeof(void*));
STM_SIZE(NetTrayEntry, STM_EITHER(12, 24));

typedef struct NetBinEntry { /* 8 or 16 bytes */
  const char* name;          /*  0  0 */
  uint32_t flags;            /*  4  8  low byte: 0x1 gives bin state 2, else 0x2 gives 1, else 0 */
} NetBinEntry;
STM_AT(NetBinEntry, name, 0, sizeof(void*));
STM_AT(NetBinEntry, flags, STM_EITHER(4, 8), 4);
STM_SIZE(NetBinEntry, STM_EITHER(8, 16));

typedef struct NetOptionEntry { /* 4 or 8 bytes */
  const char* name;             /*  0  0 */
} NetOptionEntry;
STM_AT(NetOptionEntry, name, 0, sizeof(void*));
STM_SIZE(NetOptionEntry, STM_EITHER(4, 8));

enum { NetModeTrays = 1, NetModeBins = 2, NetModeOptions = 3 };

typedef struct NetInfoList {                  /* 16 or 24 bytes */
  int32_t entryCount;                         /*  0  0  0 or less: none */
  int32_t currentIndex;                       /*  4  4  1-based entry in use */
  const NetOptionEntry* const* optionEntries; /*  8  8  mode 3 */
  const void* const* entries;                 /* 12 16  NetTrayEntry (1) or NetBinEntry (2) */
} NetInfoList;
STM_AT(NetInfoList, entryCount, 0, 4);
STM_AT(NetInfoList, currentIndex, 4, 4);
STM_AT(NetInfoList, optionEntries, 8, sizeof(void*));
STM_AT(NetInfoList, entries, STM_EITHER(12, 16), sizeof(void*));
STM_SIZE(NetInfoList, STM_EITHER(16, 24));

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
