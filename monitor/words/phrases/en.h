// English. The remarks tell translators what a phrase is for. {1} and {2} stand for what is put in.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kEnglishPhrases[] = {
    // Rows of the report; groups of events.
    {Phrase::Printer,             "Printer"},
    {Phrase::Model,               "Model"},
    {Phrase::Maker,               "Maker"},
    {Phrase::Description,         "Described as"},
    {Phrase::Speaks,              "Speaks"},  // printer languages that it understands
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Conditions"},  // what the printer reports
    {Phrase::Trays,               "Trays"},
    {Phrase::Bins,                "Bins"},  // where printed paper comes out
    {Phrase::Options,             "Options"},  // equipment that can be added
    {Phrase::PrinterLanguage,     "Language"},  // printer language in use
    {Phrase::Versions,            "Versions"},
    {Phrase::Number,              "Number"},
    {Phrase::Fonts,               "Fonts"},

    // Their values.
    {Phrase::Yes,                 "yes"},
    {Phrase::No,                  "no"},
    {Phrase::None,                "none"},  // no options
    {Phrase::VersionIs,           "version {1}"},
    {Phrase::NumberIs,            "number {1}"},
    {Phrase::InUse,               "in use"},  // a tray or bin
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "level {1}"},  // of paper in a tray, "75 %" or a bare number
    {Phrase::BinEmpty,            "empty"},
    {Phrase::BinNotFull,          "not full"},
    {Phrase::BinFull,             "full"},
    {Phrase::BinState,            "state {1}"},  // of a bin, a number without a name

    // How grave a condition is.
    {Phrase::SeverityReport,      "report"},  // nothing to do
    {Phrase::SeverityWarning,     "warning"},
    {Phrase::SeverityError,       "error"},
    {Phrase::SeverityUnknown,     "unknown"},

    // Trays and bins.
    {Phrase::TrayBypass,          "Bypass tray"},
    {Phrase::TrayMultiPurpose,    "Multi-purpose tray"},
    {Phrase::TrayNumber,          "Tray {1}"},  // 1 to 4
    {Phrase::TrayFive,            "Tray 5"},
    {Phrase::TrayOther,           "Tray with id {1}"},
    {Phrase::BinNumber,           "Bin {1}"},
    {Phrase::BinOther,            "Unknown bin"},

    // Papers; sizes such as A4 have no row.
    {Phrase::PaperNone,           "no paper"},
    {Phrase::PaperFree,           "free size"},
    {Phrase::PaperPostcard,       "postcard"},
    {Phrase::PaperMissing,        "not in place"},  // the tray
    {Phrase::PaperRotated,        "{1} rotated"},  // a size
    {Phrase::PaperOther,          "paper with code {1}"},

    // Options and printer languages.
    {Phrase::OptionDuplex,        "Duplex unit"},
    {Phrase::OptionHardDisk,      "Hard disk unit"},
    {Phrase::OptionSort,          "Electronic sort"},
    {Phrase::OptionStapler,       "Stapler"},
    {Phrase::OptionPuncher,       "Puncher"},
    {Phrase::OptionTray,          "Option tray"},
    {Phrase::OptionOther,         "Option with code {1}"},
    {Phrase::LanguageUnknown,     "unknown"},  // printer language
    {Phrase::LanguageOther,       "Language with code {1}"},

    // Toners.
    {Phrase::Cyan,                "cyan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "yellow"},
    {Phrase::Black,               "black"},

    // Conditions for which the library has no words, or in Japanese alone.
    {Phrase::UnknownCondition,    "Unknown condition, code {1}"},
    {Phrase::TonerNearlyEmpty,    "Toner is almost empty.\nAdd Toner."},
    {Phrase::OutputFull,          "Output Tray Full"},
    {Phrase::OutputFullDetail,    "Output Tray is full.\nRemove paper from the indicated area."},
    {Phrase::OutputNearlyFull,    "Output Tray is almost full.\nRemove paper from Output Tray."},
    {Phrase::UnitR3,              "Please call your service center.\nUnit should be changed: R3"},
    {Phrase::RearCoverOpen,       "Rear Cover to Tray is open.\nClose the indicated cover."},
    {Phrase::RearCoverOpenDuplex, "Rear Cover to Tray is open.\nCheck the indicated area.\nRear Cover to Tray 2 is inside Duplex Unit."},

    // What happens to a printer that is watched.
    {Phrase::FirstAnswer,         "answers for the first time: {1}"},  // the status
    {Phrase::Lost,                "no usable answer ({1}): {2}"},  // {1} one of the next two, {2} the reason
    {Phrase::NeverAnswered,       "never answered so far"},
    {Phrase::LastAnswerAgo,       "last answer {1} ago"},
    {Phrase::Back,                "answers again ({1}): {2}"},  // {1} the next one, {2} the status
    {Phrase::SilentFor,           "no usable answer for {1}"},
    {Phrase::Flapping,            "keeps changing, no more is told until it is steady: {1}"},  // {1} the latest change
    {Phrase::Steady,              "steady again: {1}"},  // {1} the change that lasted

    // Spans of time.
    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    // The window; & stands before the key of a control, which no other has.
    {Phrase::WindowTitle,         "Printer monitor"},
    {Phrase::PrinterField,        "&Printer:"},
    {Phrase::PollNow,             "Poll &now"},  // button
    {Phrase::Every,               "&Every"},  // before a number of seconds
    {Phrase::EverySeconds,        "s"},  // behind it
    {Phrase::LanguageField,       "&Language:"},  // of the texts
    {Phrase::OthersList,          "&Also reported:"},  // conditions
    {Phrase::TraysList,           "&Trays:"},
    {Phrase::EquipmentList,       "E&quipment:"},  // options, bins, language, versions
    {Phrase::Close,               "&Close"},  // button
    {Phrase::Connecting,          "Connecting..."},
    {Phrase::Asking,              "Asking {1}..."},  // a printer's address
    {Phrase::AnsweredAt,          "{1} answered at {2}."},  // address, time of day
    {Phrase::LastAnswerAt,        "Last answer at {1}, {2} ago: trays and equipment are of that time."},  // time of day, span
    {Phrase::NoAnswerSince,       "No answer since {1}, {2} ago."},  // time of day, span
    {Phrase::SimulatedPrinter,    "Simulated printer"},
    {Phrase::WrongAddress,        "'{1}' is not a printer's address; HOST, HOST:PORT or [IPV6]:PORT are."},

    // The gallery.
    {Phrase::GalleryTitle,        "Printer states"},
    {Phrase::GalleryLanguage,     "Language"},  // of the texts
    {Phrase::CodeNumber,          "code {1}"},  // of a status
};
// clang-format on

}  // namespace stmon
