// The bitmaps from which the picture of the printer is put together, by part code.
#pragma once

#include <cstdint>

#include "platform/windows_api.h"
#include "stmdata/records.h"

namespace stm {

// Whole printers replace what is there; of the pairs the mask (BMP_PB_) cuts a hole into which the
// image (BMP_PR_) is painted.
inline constexpr PrnPart kPartsTable[] = {
    //  bitmap  drawn when its flag is set, when it is clear
    {"", 0, 0},                                  // 0 empty slot
    {"BMP_P_BASE", SRCCOPY, SRCCOPY},            // 1
    {"BMP_P_B_BASE1", SRCCOPY, SRCCOPY},         // 2
    {"BMP_PR_BASE2", SRCPAINT, MERGEPAINT},      // 3
    {"BMP_PR_B_BASE2", SRCPAINT, MERGEPAINT},    // 4
    {"BMP_PR_P_TRAY1", SRCPAINT, MERGEPAINT},    // 5
    {"BMP_PR_P_TRAY2", SRCPAINT, MERGEPAINT},    // 6
    {"BMP_PR_WASTONER", SRCPAINT, MERGEPAINT},   // 7
    {"BMP_PR_K_UNIT", SRCPAINT, MERGEPAINT},     // 8
    {"BMP_PR_O_BOTTLE", SRCPAINT, MERGEPAINT},   // 9
    {"BMP_PR_C_ROLLER", SRCPAINT, MERGEPAINT},   // 10
    {"BMP_PR_COVER_O", SRCPAINT, MERGEPAINT},    // 11
    {"BMP_PR_TONER_F", SRCPAINT, MERGEPAINT},    // 12
    {"BMP_PR_F_COVER", SRCPAINT, MERGEPAINT},    // 13
    {"BMP_PR_T_COVER", SRCPAINT, MERGEPAINT},    // 14
    {"BMP_PR_TONER_EK", SRCPAINT, MERGEPAINT},   // 15
    {"BMP_PR_TONER_EY", SRCPAINT, MERGEPAINT},   // 16
    {"BMP_PR_TONER_EM", SRCPAINT, MERGEPAINT},   // 17
    {"BMP_PR_TONER_EC", SRCPAINT, MERGEPAINT},   // 18
    {"BMP_PR_B_COVER", SRCPAINT, MERGEPAINT},    // 19
    {"BMP_PR_BT_COVER", SRCPAINT, MERGEPAINT},   // 20
    {"BMP_PR_CAUTION", SRCPAINT, MERGEPAINT},    // 21
    {"BMP_PR_SERVICE", SRCPAINT, MERGEPAINT},    // 22
    {"BMP_PR_POWEROFF", SRCPAINT, MERGEPAINT},   // 23
    {"BMP_PB_P_TRAY1", SRCAND, MERGEPAINT},      // 24
    {"BMP_PB_P_TRAY2", SRCAND, MERGEPAINT},      // 25
    {"BMP_PB_WASTONER", SRCAND, MERGEPAINT},     // 26
    {"BMP_PB_K_UNIT", SRCAND, MERGEPAINT},       // 27
    {"BMP_PB_O_BOTTLE", SRCAND, MERGEPAINT},     // 28
    {"BMP_PB_C_ROLLER", SRCAND, MERGEPAINT},     // 29
    {"BMP_PB_COVER_O", SRCAND, MERGEPAINT},      // 30
    {"BMP_PB_TONER_F", SRCAND, MERGEPAINT},      // 31
    {"BMP_PB_F_COVER", SRCAND, MERGEPAINT},      // 32
    {"BMP_PB_T_COVER", SRCAND, MERGEPAINT},      // 33
    {"BMP_PB_TONER_EK", SRCAND, MERGEPAINT},     // 34
    {"BMP_PB_TONER_EY", SRCAND, MERGEPAINT},     // 35
    {"BMP_PB_TONER_EM", SRCAND, MERGEPAINT},     // 36
    {"BMP_PB_TONER_EC", SRCAND, MERGEPAINT},     // 37
    {"BMP_PB_B_COVER", SRCAND, MERGEPAINT},      // 38
    {"BMP_PB_BT_COVER", SRCAND, MERGEPAINT},     // 39
    {"BMP_PB_CAUTION", SRCAND, MERGEPAINT},      // 40
    {"BMP_PB_SERVICE", SRCAND, MERGEPAINT},      // 41
    {"BMP_PB_POWEROFF", SRCAND, MERGEPAINT},     // 42
    {"BMP_PB_BASE2", SRCAND, MERGEPAINT},        // 43
    {"BMP_PB_B_BASE2", SRCAND, MERGEPAINT},      // 44
    {"BMP_P_DUP_BACK", SRCCOPY, SRCCOPY},        // 45
    {"BMP_PR_DT_CVR", SRCPAINT, MERGEPAINT},     // 46
    {"BMP_PR_DUP_U1", SRCPAINT, MERGEPAINT},     // 47
    {"BMP_PR_DUP_U2", SRCPAINT, MERGEPAINT},     // 48
    {"BMP_PR_DUP_U3", SRCPAINT, MERGEPAINT},     // 49
    {"BMP_PB_DT_CVR", SRCAND, MERGEPAINT},       // 50
    {"BMP_PB_DUP_U1", SRCAND, MERGEPAINT},       // 51
    {"BMP_PB_DUP_U2", SRCAND, MERGEPAINT},       // 52
    {"BMP_PB_DUP_U3", SRCAND, MERGEPAINT},       // 53
    {"BMP_PR_BASE3", SRCPAINT, MERGEPAINT},      // 54
    {"BMP_PB_BASE3", SRCAND, MERGEPAINT},        // 55
    {"BMP_PR_B_BASE3", SRCPAINT, MERGEPAINT},    // 56
    {"BMP_PB_B_BASE3", SRCAND, MERGEPAINT},      // 57
    {"BMP_PR_P_TRAY3", SRCPAINT, MERGEPAINT},    // 58
    {"BMP_PB_P_TRAY3", SRCAND, MERGEPAINT},      // 59
    {"BMP_PR_B_COVER2", SRCPAINT, MERGEPAINT},   // 60
    {"BMP_PB_B_COVER2", SRCAND, MERGEPAINT},     // 61
    {"BMP_PR_B_COVER3", SRCPAINT, MERGEPAINT},   // 62
    {"BMP_PB_B_COVER3", SRCAND, MERGEPAINT},     // 63
    {"BMP_PR_HAISHI", SRCPAINT, MERGEPAINT},     // 64
    {"BMP_PB_HAISHI", SRCAND, MERGEPAINT},       // 65
    {"BMP_PR_DUP_BACK2", SRCPAINT, MERGEPAINT},  // 66
    {"BMP_PB_DUP_BACK2", SRCAND, MERGEPAINT},    // 67
};

inline constexpr uint32_t kPartCount = sizeof kPartsTable / sizeof kPartsTable[0];
static_assert(kPartCount == 68);

}  // namespace stm
