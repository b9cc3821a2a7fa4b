// Hungarian. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kHungarianPhrases[] = {
    {Phrase::Printer,             "Nyomtató"},
    {Phrase::Model,               "Modell"},
    {Phrase::Maker,               "Gyártó"},
    {Phrase::Description,         "Megnevezés"},
    {Phrase::Speaks,              "Nyomtatónyelvek"},
    {Phrase::Status,              "Állapot"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Üzenetek"},
    {Phrase::Trays,               "Tálcák"},
    {Phrase::Bins,                "Kimeneti tálcák"},
    {Phrase::Options,             "Opciók"},
    {Phrase::PrinterLanguage,     "Nyomtatónyelv"},
    {Phrase::Versions,            "Verziók"},
    {Phrase::Number,              "Szám"},
    {Phrase::Fonts,               "Betűtípusok"},

    {Phrase::Yes,                 "igen"},
    {Phrase::No,                  "nem"},
    {Phrase::None,                "nincs"},
    {Phrase::VersionIs,           "verzió: {1}"},
    {Phrase::NumberIs,            "szám: {1}"},
    {Phrase::InUse,               "használatban"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "szint: {1}"},
    {Phrase::BinEmpty,            "üres"},
    {Phrase::BinNotFull,          "nincs tele"},
    {Phrase::BinFull,             "tele"},
    {Phrase::BinState,            "állapot: {1}"},

    {Phrase::SeverityReport,      "tájékoztatás"},
    {Phrase::SeverityWarning,     "figyelmeztetés"},
    {Phrase::SeverityError,       "hiba"},
    {Phrase::SeverityUnknown,     "ismeretlen"},

    {Phrase::TrayBypass,          "Kézi adagoló tálca"},
    {Phrase::TrayMultiPurpose,    "Többcélú tálca"},
    {Phrase::TrayNumber,          "{1}. tálca"},
    {Phrase::TrayFive,            "5. tálca"},
    {Phrase::TrayOther,           "{1} azonosítójú tálca"},
    {Phrase::BinNumber,           "{1}. kimeneti tálca"},
    {Phrase::BinOther,            "Ismeretlen kimeneti tálca"},

    {Phrase::PaperNone,           "nincs papír"},
    {Phrase::PaperFree,           "szabad méret"},
    {Phrase::PaperPostcard,       "levelezőlap"},
    {Phrase::PaperMissing,        "nincs behelyezve"},
    {Phrase::PaperRotated,        "{1} elforgatva"},
    {Phrase::PaperOther,          "{1} kódú papír"},

    {Phrase::OptionDuplex,        "Duplex egység"},
    {Phrase::OptionHardDisk,      "Merevlemez"},
    {Phrase::OptionSort,          "Elektronikus szétválogatás"},
    {Phrase::OptionStapler,       "Tűzőegység"},
    {Phrase::OptionPuncher,       "Lyukasztóegység"},
    {Phrase::OptionTray,          "Opcionális tálca"},
    {Phrase::OptionOther,         "{1} kódú opció"},
    {Phrase::LanguageUnknown,     "ismeretlen"},
    {Phrase::LanguageOther,       "{1} kódú nyomtatónyelv"},

    {Phrase::Cyan,                "cián"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "sárga"},
    {Phrase::Black,               "fekete"},

    {Phrase::UnknownCondition,    "Ismeretlen üzenet, kód: {1}"},
    {Phrase::TonerNearlyEmpty,    "A toner fogytán van.\nPótolja a tonert."},
    {Phrase::OutputFull,          "A kimeneti tálca megtelt"},
    {Phrase::OutputFullDetail,    "A kimeneti tálca megtelt.\nTávolítsa el a papírt a jelzett helyről."},
    {Phrase::OutputNearlyFull,    "A kimeneti tálca majdnem megtelt.\nTávolítsa el a papírt a kimeneti tálcáról."},
    {Phrase::UnitR3,              "Hívja a szervizközpontot.\nCserélendő egység: R3"},
    {Phrase::RearCoverOpen,       "A tálca hátsó fedele nyitva van.\nCsukja be a jelzett fedelet."},
    {Phrase::RearCoverOpenDuplex, "A tálca hátsó fedele nyitva van.\nEllenőrizze a jelzett helyet.\nA 2. tálca hátsó fedele a duplex egységen belül van."},

    {Phrase::FirstAnswer,         "először válaszol: {1}"},
    {Phrase::Lost,                "nincs használható válasz ({1}): {2}"},
    {Phrase::NeverAnswered,       "eddig sosem válaszolt"},
    {Phrase::LastAnswerAgo,       "az utolsó válasz óta eltelt: {1}"},
    {Phrase::Back,                "újra válaszol ({1}): {2}"},
    {Phrase::SilentFor,           "használható válasz nélkül: {1}"},
    {Phrase::Flapping,            "folyamatosan változik, újabb üzenet csak akkor, ha állandósul: {1}"},
    {Phrase::Steady,              "ismét állandó: {1}"},

    {Phrase::Seconds,             "{1} mp"},
    {Phrase::Minutes,             "{1} perc"},
    {Phrase::Hours,               "{1} óra {2} perc"},

    {Phrase::WindowTitle,         "Nyomtatófigyelő"},
    {Phrase::PrinterField,        "&Nyomtató:"},
    {Phrase::PollNow,             "Le&kérdezés"},
    {Phrase::Every,               "&Időköz"},
    {Phrase::EverySeconds,        "mp"},
    {Phrase::LanguageField,       "N&yelv:"},
    {Phrase::OthersList,          "&További üzenetek:"},
    {Phrase::TraysList,           "Tá&lcák:"},
    {Phrase::EquipmentList,       "&Felszereltség:"},
    {Phrase::Close,               "&Bezárás"},
    {Phrase::Connecting,          "Kapcsolódás..."},
    {Phrase::Asking,              "{1} lekérdezése..."},
    {Phrase::AnsweredAt,          "{1} válaszolt, időpont: {2}."},
    {Phrase::LastAnswerAt,        "Utolsó válasz: {1}, azóta eltelt: {2}. A tálcák és a felszereltség akkori adatok."},
    {Phrase::NoAnswerSince,       "Nincs válasz {1} óta, eltelt: {2}."},
    {Phrase::SimulatedPrinter,    "Szimulált nyomtató"},
    {Phrase::WrongAddress,        "'{1}' nem nyomtatócím; megengedett: HOST, HOST:PORT és [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "A nyomtató állapotai"},
    {Phrase::GalleryLanguage,     "Nyelv"},
    {Phrase::CodeNumber,          "kód: {1}"},
};
// clang-format on

}  // namespace stmon
