/* stmdata: what a colour laser printer says, in records, codes, texts and pictures.

   The road of a poll: CreateQueryCommand gives the bytes to send, SetPrnInfo(Ex)FromReadbackCmd
   fills a record from the printer's reply, and the Pat... questions are asked of that record.

   Functions come in twins: the plain name takes the flat PrnInfo, the name with _Ex the list-based
   PrnInfoEx. All run to completion on the caller's thread and keep no reference to what they are
   given. Results are 1 for success and 0 for failure unless said otherwise. */
#ifndef STMDATA_STMDATA_H
#define STMDATA_STMDATA_H

#ifdef _WIN32
#include <windows.h>
#define STM_CALL __stdcall
#define STM_API
#else
#include "stmdata/host.h"
#define STM_API __attribute__((visibility("default")))
#endif

#include "stmdata/records.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Module ---------------------------------------------------------------------------------- */

#ifndef _WIN32
/* Called once by the loader. Result: 1. */
STM_API BOOL STM_CALL DllMain(HINSTANCE module, DWORD reason, void* reserved);
#endif

/* ---- Language -------------------------------------------------------------------------------- */

/* Chooses the language of the _Ex text questions and of PatGetDeviceName, for the process. The
   other texts follow the thread's language, and so do these until the first call.
   name    a code of LocaleTable (languages.h) in any case, such as EN or JP; upper-cased in place.
           Anything else chooses English
   Result  1, 0 for null: the language stays */
STM_API uint32_t STM_CALL PatSetLocale(char* name);

/* ---- Resources -------------------------------------------------------------------------------
   The library carries the pictures and icons that its answers name. None of these calls sets
   PatGetError; a null result is all they tell, beside the system's own last error. */

/* Finds a bitmap of the library.
   name    a bitmap's name, in any case, or an integer id in place of the pointer
   Result  the system's handle of the resource, or null */
STM_API HRSRC STM_CALL PatFindResource(const char* name);

/* Loads what PatFindResource found: a packed device-independent bitmap.
   Result  the handle of the data for LockResource, which the library keeps; or null */
STM_API HGLOBAL STM_CALL PatLoadResource(HRSRC resource);

/* Loads a bitmap of the library: a picture layer of 320 x 200 pixels or a paper picture of 12 x 12.
   name    a bitmap's name, in any case
   Result  a new bitmap that the caller releases with DeleteObject, or null */
STM_API HBITMAP STM_CALL PatLoadBitmap(const char* name);

/* Loads an icon of the library, 32 x 32 pixels.
   name    an icon group's name, in any case
   Result  a shared icon that the caller does not release, or null */
STM_API HICON STM_CALL PatLoadIcon(const char* name);

/* ---- Query and reply ------------------------------------------------------------------------- */

/* Builds the readback query to be sent to the printer.
   groups  set of Group... bits; bits without request bytes add nothing
   buffer  receives the query, at most 41 bytes, and a zero byte after it where there is room
   size    in: capacity of `buffer` in bytes; out: length of the query in bytes without the zero
   Result  1 written. 0: nothing written, GetLastError says why:
           487 `size` or `buffer` is null; 122 too small, `*size` is then the length needed */
STM_API uint32_t STM_CALL CreateQueryCommand(uint32_t groups, char* buffer, uint32_t* size);

/* Updates `record` from the printer's readback reply, block by block.
   record  the caller's, zero-filled before its first use; what the reply does not carry stays. The
           lists of S, T, Z and L blocks are reused when the number of entries is unchanged, else
           rebuilt; those of F and D blocks are written anew
   reply   `length` bytes; none past them is read, but the first one in any case. The walk ends at
           the length, at a byte other than ESC where a block should begin, at an unknown letter,
           and at a block that the reply cuts off. A block counts as cut off when its end is missing
           and fewer than 255 bytes are left (256 of an S block); of a longer one as many are read
   length  bytes; of 0 or less nothing but the first byte is read
   Result  1 walked, also for a length of 0 or less; 0 null record or reply, or the reply does not
           begin with ESC (the record is untouched).
   A block's list that cannot be allocated becomes empty. A version text that the record holds
   already must have room for 6 characters: it is written over. */
STM_API uint32_t STM_CALL SetPrnInfoExFromReadbackCmd(PrnInfoEx* record, const char* reply,
                                                      int32_t length);

/* Updates the flat `record` from the printer's readback reply, group by group; arguments and walk
   as above.
   record  the caller's; fields of groups that the reply does not carry stay, `structSize` and
           `reserved...` always. Arrays take what fits while their counts tell what the printer
           reported; texts are cut at their field. Options 1 and 4 to 6 are never taken back from
           `hasDuplex` and `option4Present` to `option6Present`; a C block alone changes nothing
   Result  1 walked; 0 null record, no ESC at the beginning of the reply, or no memory (the record
           is untouched) */
STM_API uint32_t STM_CALL SetPrnInfoFromReadbackCmd(PrnInfo* record, const char* reply,
                                                    int32_t length);

/* ---- Device ID ------------------------------------------------------------------------------- */

/* Reads the keys MFG, CMD, MDL and DES of an IEEE 1284 Device ID: maker, printer languages, model
   name, description, and from the last two the model code, which the later key decides.
   record    the caller's, zero-filled before its first use; `recordTag` and `structSize` are set.
             A key's earlier string or list is released and replaced; fields of keys that the string
             lacks stay. A string that cannot be allocated becomes null
   deviceId  fields ended by ";", without the two length bytes of the wire. Keys count in upper case
             at the beginning of a field; a field is cut at 255 bytes. A last MDL, DES or CMD field
             without ";" loses its last character. Null counts as an empty string, and none of the
             record's own strings may be handed in
   length    bytes; the string also ends at its first zero byte
   Result    1 read, 0 null record */
STM_API uint32_t STM_CALL SetModelInfoExFromDeviceID(ModelInfoEx* record, const char* deviceId,
                                                     uint32_t length);

/* Fills `modelName`, `manufacturer` (cut at 15 characters), `description`, `modelCode`,
   `emulationList` (the first 32) and `emulationCount` of the flat `record`; arguments as above.
   Fields of keys that the string lacks stay, but `modelCode` becomes 0 without MDL and DES.
   Result  1 read; 0 null record, or no memory (the record is untouched) */
STM_API uint32_t STM_CALL SetModelInfoFromDeviceID(PrnInfo* record, const char* deviceId,
                                                   uint32_t length);

/* ---- Status ---------------------------------------------------------------------------------- */

/* The library's last error, one value for the process: one of the PatError... values. Most
   successful calls leave an earlier value standing. */
STM_API uint32_t STM_CALL PatGetError(void);

/* Copies the status row of the record's status code to `row`. No choice among several statuses is
   made and service calls 49 to 64 have no row.
   Result  1 copied, 0 failed and `row` untouched; PatGetError: 1 no row for the code, 2 `info` or
           `row` is null
   _Ex     takes the first listed status; PatGetError is 1 also when none is listed */
STM_API uint32_t STM_CALL PatGetPrinterStatus(const PrnInfo* info, StatusRow* row);
STM_API uint32_t STM_CALL PatGetPrinterStatus_Ex(const PrnInfoEx* info, StatusRow* row);

/* ---- Messages --------------------------------------------------------------------------------
   Texts for the user. The plain questions answer in the thread's language and the system's code
   page, the _Ex questions in the language of PatSetLocale and its code page (932 Japanese, 1250
   Czech, Hungarian and Polish, 1252 the others).
   buffer  receives at most `size` bytes; emptied first, always terminated, cut between characters.
           Nothing is written to a null buffer or for a size of 0 or less
   Result  1 written. 0: PatGetError 2 `info` is null, 3 the text is not to be had or has no room
           at all. A text that the language lacks is 3 for the plain question and "" with result 1
           for the _Ex one. */

/* The status line, such as "No Paper": of the dominant status when several are listed, else of
   `statusCode`, unless the printer does not respond, or prints in a mild state (code 23 or less).
   An offline printer in a mild state says that it is offline.
   _Ex     always of the dominant status; says offline whenever the printer is offline without an
           error, whatever is listed */
STM_API uint32_t STM_CALL PatGetSimpleString(const PrnInfo* info, char* buffer, int32_t size);
STM_API uint32_t STM_CALL PatGetSimpleString_Ex(const PrnInfoEx* info, char* buffer, int32_t size);

/* What to do about it, of the status chosen as for the status line. A ready printer with a missing
   tray, or an empty one other than the bypass tray, is told to have one, even offline. Toner states
   end with a line of the colours concerned, in code page 932 and as often as they are listed.
   info    with statusCount 1, statusList[0] becomes the code that was chosen

   _Ex     does not write to the record; offline comes before the trays, the bypass tray counts, a
           duplex unit in the way is told of (result 1 even when that text is not to be had), and
           each colour is named once, in the language, on the text's last line */
STM_API uint32_t STM_CALL PatGetDetailString(PrnInfo* info, char* buffer, uint32_t size);
STM_API uint32_t STM_CALL PatGetDetailString_Ex(const PrnInfoEx* info, char* buffer, int32_t size);

/* How to recover: no language has a text for it, so that the call ends with PatGetError 3.
   _Ex     ends with 1 and "" */
STM_API uint32_t STM_CALL PatGetRecoveryString(const PrnInfo* info, char* buffer, int32_t size);
STM_API uint32_t STM_CALL PatGetRecoveryString_Ex(const PrnInfoEx* info, char* buffer,
                                                  int32_t size);

/* There is no help context; the numbers are not read and `context` becomes "" unless it is null.
   Result  0; PatGetError: 1 */
STM_API uint32_t STM_CALL PatGetHelpContext(uint32_t first, uint32_t second, char* context);
STM_API uint32_t STM_CALL PatGetHelpContext_Ex(uint32_t first, uint32_t second, char* context);

/* ---- Icons and parts ------------------------------------------------------------------------- */

/* Writes the name of the icon that shows the record's state. PatLoadIcon knows it, except
   BMP_ERR_CAUTION and ICO_ERR_POWEROFF, which are the caller's to resolve.
   buffer  at least 17 bytes; always terminated
   Result  1 written. 0: nothing written; PatGetError: 2 `info` or `buffer` is null
   A code without an icon gives BMP_ERR_CAUTION; an offline printer in a mild state ICO_OFFLINE. A
   record with several statuses shows the dominant one; printing and a missing response count only
   then.
   _Ex     shows the dominant status; a printer that does not respond ICO_ERR_POWEROFF, an online
           one without a listed status ICO_ONLINE, printing or not */
STM_API uint32_t STM_CALL PatGetErrParts(const PrnInfo* info, char* buffer);
STM_API uint32_t STM_CALL PatGetErrParts_Ex(const PrnInfoEx* info, char* buffer);

/* Writes the name of the icon for a paper level.
   kind    1, the paper-level icons
   amount  per cent; above 100 it shows as 51 to 75
   buffer  at least 12 bytes; always terminated
   size    not read
   Result  1 written, PatGetError becomes 0. 0 and "" for another `kind`, PatGetError stays;
           0 with PatGetError 2 for a null buffer */
STM_API uint32_t STM_CALL PatGetIconName(uint32_t kind, uint32_t amount, char* buffer,
                                         uint32_t size);

/* Copies an entry of the parts table: a bitmap's name and the raster operations to draw it with.
   info    not read, only tested for null
   index   part code 0 to 67
   part    receives the entry, also when `info` is null; its name stays the library's
   Result  1 copied. 0: PatGetError 2 `info` or `part` is null, 1 no such index, `part` untouched */
STM_API uint32_t STM_CALL PatGetPrnParts(const PrnInfo* info, uint8_t index, PrnPart* part);
STM_API uint32_t STM_CALL PatGetPrnParts_Ex(const PrnInfoEx* info, uint8_t index, PrnPart* part);

/* ---- Paper and trays -------------------------------------------------------------------------
   `info` is not read and may be null. Names are fixed bytes of code page 932 in every language.
   Buffers are emptied first and always terminated. Result: 1 written; 0 for a code without an
   answer, PatGetError is then 0; 0 with PatGetError 2 for a null buffer. */

/* The name of a paper size; buffer of at least 8 bytes. "" is the name of "no paper" (1). */
STM_API uint32_t STM_CALL PatGetPaperName(const PrnInfo* info, uint32_t paperCode, char* buffer);
STM_API uint32_t STM_CALL PatGetPaperName_Ex(const PrnInfoEx* info, uint32_t paperCode,
                                             char* buffer);

/* The name of the picture that shows a paper's orientation, for PatLoadBitmap; buffer of at least
   17 bytes. Papers without an orientation have none. */
STM_API uint32_t STM_CALL PatGetPaperBitmap(const PrnInfo* info, uint32_t paperCode, char* buffer);
STM_API uint32_t STM_CALL PatGetPaperBitmap_Ex(const PrnInfoEx* info, uint32_t paperCode,
                                               char* buffer);

/* The name of a tray; buffer of at least 12 bytes. */
STM_API uint32_t STM_CALL PatGetTrayName(const PrnInfo* info, uint32_t trayCode, char* buffer);
STM_API uint32_t STM_CALL PatGetTrayName_Ex(const PrnInfoEx* info, uint32_t trayCode, char* buffer);

/* Kept for callers that ask; no argument is read. Result: 0, PatGetError stays. */
STM_API uint32_t STM_CALL PatGetTrayRect(uint32_t info, uint32_t tray, uint32_t rect);
STM_API uint32_t STM_CALL PatGetTrayRect_Ex(uint32_t info, uint32_t tray, uint32_t rect);

/* ---- Picture ---------------------------------------------------------------------------------
   A part list names the layers of the printer picture, in drawing order: part codes 1 to 67, each
   the index of a part in PatGetPrnParts, then zeros. */

/* Composes the picture that shows a record's statuses.
   partCodes       receives the part list
   extraPartCodes  is cleared and carries nothing
   size            bytes that each list can take, at least 16; of more than 64, 64 are used and
                   cleared. Codes that do not fit are dropped
   Result  64 composed, whatever the size; 0 failed and both lists untouched; PatGetError:
           1 null record, 5 `size` below 16 or a null list
   The printer is seen from the front. Of the back there are units without it: optional trays (39
   and 45), the duplex unit (91, 96, 97); of 89, 90 and 94 the optional trays from the front.
   _Ex     draws covers at the back and the duplex unit in a view from behind */
STM_API uint32_t STM_CALL PatGetPrnBitmapEx(const PrnInfo* info, uint8_t* partCodes,
                                            uint8_t* extraPartCodes, int32_t size);
STM_API uint32_t STM_CALL PatGetPrnBitmapEx_Ex(const PrnInfoEx* info, uint8_t* partCodes,
                                               uint8_t* extraPartCodes, int32_t size);

/* The same into the two lists of `bitmap`, whose first field stays as it is.
   Result  1 composed, 0 failed and `bitmap` untouched; PatGetError: 1 null record, 5 null `bitmap`
   _Ex     as above */
STM_API uint32_t STM_CALL PatGetPrnBitmap(const PrnInfo* info, PrnBitmap* bitmap);
STM_API uint32_t STM_CALL PatGetPrnBitmap_Ex(const PrnInfoEx* info, PrnBitmap* bitmap);

/* Draws the part list of the latest successful composition in the process, of either record kind
   and by any thread (of a list of more than 16 codes the first 16), layer by layer into a control
   of a dialog. Nothing is drawn before the first composition. Empty slots and codes above 67 are
   skipped; a layer that cannot be loaded or a control that is not there costs nothing but itself.
   Bitmaps are not scaled: the control's edges clip them.
   dialog     the dialog's window; on Linux one from HostCreateDialog
   controlId  identifier of the picture control in it
   flags      0x1: each layer's second pass uses its ropSet instead of its ropClear;
              0x100: the first pass is left out. Without it the first layer is copied, which lays
              the ground, and the others are drawn with their ropSet. The printer's picture is
              drawn with 0x1
   reserved1, reserved2, reserved3  not read
   Result     always 1. PatGetError becomes 2 when the part list is not empty
   _Ex        the same */
STM_API uint32_t STM_CALL PatDrawPrinterBitmap(HWND dialog, uint32_t reserved1, int32_t controlId,
                                               uint32_t flags, uint32_t reserved2,
                                               uint32_t reserved3);
STM_API uint32_t STM_CALL PatDrawPrinterBitmap_Ex(HWND dialog, uint32_t reserved1,
                                                  int32_t controlId, uint32_t flags,
                                                  uint32_t reserved2, uint32_t reserved3);

/* ---- Network --------------------------------------------------------------------------------- */

/* Fills the fields of `info` that one name list of the network layer tells; others stay.
   mode    NetModeTrays: trayList, trayLevelList, their counts and currentTray; paper levels are per
           cent, or 1 no paper and 41 tray missing.
           NetModeBins: binList, binCount, currentBin, optionBits1 and optionBits2.
           NetModeOptions: hasDuplex, option2Flag and option3Flag
   list    entries keep their index; a null one leaves its pair as it was and is not counted, the
           pairs after the last entry are cleared. Trays and bins beyond the 16th are not stored. A
           null name is an unknown name, a null array an empty one. Names compare case-sensitively;
           unknown trays become 0 (41 with flag 0x4), unknown bins and media 0, unknown options
           nothing. `currentIndex` beyond the entries stored leaves the tray or bin in use as it was
   Result  1 filled, 0 failed and `info` untouched; PatGetError: 2 `info` or `list` is null. An
           unknown mode writes no error value */
STM_API uint32_t STM_CALL PatGetInfoFromNet(PrnInfo* info, uint32_t mode, const NetInfoList* list);

/* The status code for a status value of the network layer: the same value. */
STM_API uint32_t STM_CALL PatGetStatusFromNet(uint32_t status);

/* ---- Print manager --------------------------------------------------------------------------- */

/* Converts the selected groups of the print manager's record into `info`.
   info    the caller's, zero-filled before its first use. Lists of selected groups are resized,
           which keeps nodes and what is not written in them; the status list is rebuilt
   pm      only read; null and all-ones pointers are absent groups, items, names and texts. `count`
           of a group is the length of its `items`. None of its texts may be one of `info`
   groups  set of Group... bits; GroupDeviceId means GroupModelInfo here, GroupDuplex nothing
   Result  1 converted, also where a group was absent and nothing was written for it. 0: nothing
           written, GetLastError 6: `info` or `pm` is null
   GroupModelInfo always sets the maker "ORLEX" and drops the description. A group without items
   changes nothing but the statuses. In use: the tray's id (0 when absent or out of range), the
   bin's position from 0 (255 when absent, else not checked), the language's code (0 when absent,
   STM_ABSENT when out of range). The status list gets the items, then the network's status or else
   at most one of the state bits' codes, unless it is listed: energy saver, warming up, or ready
   without any bit. An empty one becomes ready. An item without a code is listed as 65535.
   Paper of unknown size and options of unknown device keep the code that their node had. A text
   that cannot be allocated becomes null; a list that cannot grow reports the length it has.
   _0      into the flat record. Result 0 without an error value also when a selected group lacks
           its source (for languages and fonts also when it has no item; the status list fails only
           when an item has no code, and leaves that out); all others are converted. Tray, bin and
           language in use are stored as the print manager numbers them, 0, 255 and 0 when absent.
           Both state codes, energy saver and warming up, can be listed; without any bit no code is
           added to others.
           `statusCode` becomes 102 when the state tells no response and is never written
           otherwise: neither the list nor an answer takes that back. Counts tell what was stored,
           at most the array's capacity. Texts are cut to their field, never inside a double-byte
           character of code page 932. A count of 0 empties the counts of trays and bins.
           GroupOptions clears hasDuplex, option2Flag to option4Flag and the option bits, also when
           it then fails. Texts of `info` itself may come back to their fields */
STM_API uint32_t STM_CALL PatSetPMPrnInfoToPrnInfo(PrnInfoEx* info, const PMPrnInfo* pm,
                                                   uint32_t groups);
STM_API uint32_t STM_CALL PatSetPMPrnInfoToPrnInfo_0(PrnInfo* info, const PMPrnInfo* pm,
                                                     uint32_t groups);

/* Compares two records in the selected groups.
   groups  set of Group... bits; GroupDeviceId and GroupDuplex select nothing. GroupStatusList
           compares the most urgent statuses, not the lists; GroupStatus takes the model code with
           the state flags. An STM_ABSENT tray, bin or language in use and an option value 0xFFFF
           agree with any, and so do a missing description or version text; two missing model names
           or makers agree, a missing one and a text differ. Lists of other counts differ; of
           the same count they are compared as far as their chains reach
   equal   receives 1 when the records agree, else 0. Two printers that do not respond agree, and
           one that does not differs from one that does, whatever is selected
   Result  1 compared. 0: `equal` is not written, GetLastError: 6 `first` or `second` is null, 487
           `equal` is null */
STM_API uint32_t STM_CALL PatCmpPrnInfoEX(const PrnInfoEx* first, const PrnInfoEx* second,
                                          uint32_t groups, uint32_t* equal);

/* ---- Names and version ----------------------------------------------------------------------- */

/* The display name of an installed device, in the language of PatSetLocale and its code page.
   deviceCode  as the print manager reports it: 163 option tray, 164 duplex unit
   name        receives the name with its zero byte when `*size` suffices; 32 bytes always do
   size        in: bytes in `name`; out: bytes needed, also when they were too few
   Result      1 written; 0 null argument, unknown device, text not loadable (nothing is written) or
               `*size` too small (only `*size` is written) */
STM_API uint32_t STM_CALL PatGetDeviceName(uint32_t deviceCode, char* name, uint32_t* size);

/* The description name and the code of a model.
   key        model name, as in the Device ID; case counts. The empty name has the empty description
              name and the code 255
   desName    receives the name, at most 32 bytes with the zero byte
   modelCode  receives the code
   Result     1 found; 0 null argument or unknown key, nothing is written */
STM_API uint32_t STM_CALL bGetDesName(const char* key, char* desName, uint8_t* modelCode);

/* Writes the library's six version words; the record's first field stays the caller's.
   Result  1, or 0 when `version` is null */
STM_API uint32_t STM_CALL PatGetDllVersion(PatVersionInfo* version);

#ifdef __cplusplus
} /* extern "C" */
#endif

#endif
