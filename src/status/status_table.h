// What each status code is called and how grave it is.
#pragma once

#include "stmdata/records.h"

namespace stm {

// Short and detail are string ids. Service calls come as 48 to 64, and only 48 has a row:
// FoldServiceCall makes one of all. The four toners of a group share its texts; which of them is
// meant is told in a suffix.
inline constexpr StatusRow kStatusTable[] = {
    //  code  short  level  detail
    {0, 400, 1, 600},     // ready
    {4, 404, 3, 604},     // toner nearly empty
    {5, 405, 2, 605},     // fuser cleaner nearly due
    {6, 406, 2, 606},     // fusing oil nearly empty
    {8, 408, 2, 608},     // PCU nearly due
    {9, 409, 2, 609},     // maintenance required
    {10, 410, 2, 610},    // fusing unit nearly due
    {16, 416, 2, 616},    // adjusting
    {17, 417, 2, 617},    // warming up
    {18, 418, 2, 618},    // energy saver
    {19, 419, 2, 619},    // self check
    {25, 425, 3, 625},    // waste toner full
    {26, 426, 3, 626},    // fusing oil empty
    {28, 428, 3, 628},    // fuser cleaner due
    {31, 431, 3, 631},    // paper type error
    {32, 432, 3, 632},    // no paper
    {33, 433, 3, 633},    // tray not placed properly
    {34, 434, 3, 634},    // output full
    {36, 436, 3, 636},    // top cover open
    {37, 437, 3, 637},    // front cover open
    {38, 438, 3, 638},    // toner not placed properly
    {39, 439, 3, 639},    // back cover open
    {40, 440, 3, 640},    // fusing oil not placed properly
    {42, 442, 3, 642},    // PCU not placed properly
    {43, 443, 3, 643},    // fuser cleaner not placed properly
    {44, 444, 3, 644},    // misfeed at a tray or the rear cover
    {45, 445, 3, 645},    // misfeed at the rear or top cover
    {46, 446, 3, 646},    // misfeed at the indicated area
    {65, 499, 3, 699},    // cyan toner nearly empty
    {66, 499, 3, 699},    // magenta toner nearly empty
    {67, 499, 3, 699},    // yellow toner nearly empty
    {68, 499, 3, 699},    // black toner nearly empty
    {69, 500, 3, 700},    // cyan toner empty
    {70, 500, 3, 700},    // magenta toner empty
    {71, 500, 3, 700},    // yellow toner empty
    {72, 500, 3, 700},    // black toner empty
    {73, 501, 3, 701},    // cyan toner not placed properly
    {74, 501, 3, 701},    // magenta toner not placed properly
    {75, 501, 3, 701},    // yellow toner not placed properly
    {76, 501, 3, 701},    // black toner not placed properly
    {81, 481, 1, 681},    // waste toner nearly full
    {82, 482, 1, 682},    // output nearly full
    {83, 483, 1, 683},    // unit T1 nearly due
    {85, 485, 1, 685},    // unit R1 nearly due
    {86, 486, 1, 686},    // unit R2 nearly due
    {87, 487, 1, 687},    // unit R3 nearly due
    {88, 488, 1, 688},    // unit D1 nearly due
    {89, 489, 3, 689},    // cover behind a tray open
    {90, 490, 3, 690},    // cover behind a tray open
    {91, 491, 3, 691},    // duplex unit cover open
    {93, 493, 3, 693},    // tray or its connector not placed properly
    {94, 494, 3, 694},    // transfer roller not placed properly
    {96, 496, 3, 696},    // misfeed in the duplex unit
    {97, 497, 3, 697},    // misfeed in the duplex unit
    {99, 507, 3, 708},    // front cover not placed properly
    {48, 498, 3, 698},    // service call, stands for 48 to 64
    {100, 504, 3, 705},   // printing
    {102, 506, 3, 707},   // no response
    {1000, 505, 0, 706},  // closing row: default of the text questions
};

inline constexpr uint32_t kStatusTableEnd = 1000;

// An offline printer says the same whatever the code: the last row both closes the table and
// answers.
inline constexpr StatusRow kOfflineStatusTable[] = {
    //  code  short  level  detail
    {0, 401, 1, 601},   // ready, but offline
    {88, 401, 1, 601},  // closing row: every code
};

inline constexpr const StatusRow& kOfflineRow = kOfflineStatusTable[1];

// The row of `code`, or the closing row when no row has it.
const StatusRow& FindStatusRow(uint32_t code);

}  // namespace stm
