// German. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kGermanPhrases[] = {
    {Phrase::Printer,             "Drucker"},
    {Phrase::Model,               "Modell"},
    {Phrase::Maker,               "Hersteller"},
    {Phrase::Description,         "Bezeichnung"},
    {Phrase::Speaks,              "Druckersprachen"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Meldungen"},
    {Phrase::Trays,               "Papierfächer"},
    {Phrase::Bins,                "Ablagen"},
    {Phrase::Options,             "Optionen"},
    {Phrase::PrinterLanguage,     "Druckersprache"},
    {Phrase::Versions,            "Versionen"},
    {Phrase::Number,              "Nummer"},
    {Phrase::Fonts,               "Schriftarten"},

    {Phrase::Yes,                 "ja"},
    {Phrase::No,                  "nein"},
    {Phrase::None,                "keine"},
    {Phrase::VersionIs,           "Version {1}"},
    {Phrase::NumberIs,            "Nummer {1}"},
    {Phrase::InUse,               "aktiv"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "Füllstand {1}"},
    {Phrase::BinEmpty,            "leer"},
    {Phrase::BinNotFull,          "nicht voll"},
    {Phrase::BinFull,             "voll"},
    {Phrase::BinState,            "Zustand {1}"},

    {Phrase::SeverityReport,      "Hinweis"},
    {Phrase::SeverityWarning,     "Warnung"},
    {Phrase::SeverityError,       "Fehler"},
    {Phrase::SeverityUnknown,     "unbekannt"},

    {Phrase::TrayBypass,          "Bypassfach"},
    {Phrase::TrayMultiPurpose,    "Mehrzweckfach"},
    {Phrase::TrayNumber,          "Papierfach {1}"},
    {Phrase::TrayFive,            "Papierfach 5"},
    {Phrase::TrayOther,           "Papierfach mit Kennung {1}"},
    {Phrase::BinNumber,           "Ablage {1}"},
    {Phrase::BinOther,            "Unbekannte Ablage"},

    {Phrase::PaperNone,           "kein Papier"},
    {Phrase::PaperFree,           "freies Format"},
    {Phrase::PaperPostcard,       "Postkarte"},
    {Phrase::PaperMissing,        "nicht eingesetzt"},
    {Phrase::PaperRotated,        "{1} gedreht"},
    {Phrase::PaperOther,          "Papier mit Code {1}"},

    {Phrase::OptionDuplex,        "Duplexeinheit"},
    {Phrase::OptionHardDisk,      "Festplatte"},
    {Phrase::OptionSort,          "Elektronische Sortierung"},
    {Phrase::OptionStapler,       "Hefter"},
    {Phrase::OptionPuncher,       "Locher"},
    {Phrase::OptionTray,          "Optionales Papierfach"},
    {Phrase::OptionOther,         "Option mit Code {1}"},
    {Phrase::LanguageUnknown,     "unbekannt"},
    {Phrase::LanguageOther,       "Druckersprache mit Code {1}"},

    {Phrase::Cyan,                "Cyan"},
    {Phrase::Magenta,             "Magenta"},
    {Phrase::Yellow,              "Gelb"},
    {Phrase::Black,               "Schwarz"},

    {Phrase::UnknownCondition,    "Unbekannte Meldung, Code {1}"},
    {Phrase::TonerNearlyEmpty,    "Der Toner ist fast aufgebraucht.\nFüllen Sie Toner nach."},
    {Phrase::OutputFull,          "Ablage voll"},
    {Phrase::OutputFullDetail,    "Die Ablage ist voll.\nEntfernen Sie das Papier aus dem gekennzeichneten Bereich."},
    {Phrase::OutputNearlyFull,    "Die Ablage ist fast voll.\nEntfernen Sie das Papier aus der Ablage."},
    {Phrase::UnitR3,              "Bitte verständigen Sie den Kundendienst.\nAuszutauschende Einheit: R3"},
    {Phrase::RearCoverOpen,       "Die hintere Abdeckung des Papierfachs ist offen.\nSchließen Sie die gekennzeichnete Abdeckung."},
    {Phrase::RearCoverOpenDuplex, "Die hintere Abdeckung des Papierfachs ist offen.\nPrüfen Sie den gekennzeichneten Bereich.\nDie hintere Abdeckung von Papierfach 2 befindet sich in der Duplexeinheit."},

    {Phrase::FirstAnswer,         "antwortet zum ersten Mal: {1}"},
    {Phrase::Lost,                "keine brauchbare Antwort ({1}): {2}"},
    {Phrase::NeverAnswered,       "bisher nie geantwortet"},
    {Phrase::LastAnswerAgo,       "letzte Antwort vor {1}"},
    {Phrase::Back,                "antwortet wieder ({1}): {2}"},
    {Phrase::SilentFor,           "{1} ohne brauchbare Antwort"},
    {Phrase::Flapping,            "wechselt ständig, weitere Meldung erst, wenn es stabil ist: {1}"},
    {Phrase::Steady,              "wieder stabil: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Druckermonitor"},
    {Phrase::PrinterField,        "&Drucker:"},
    {Phrase::PollNow,             "Jetzt ab&fragen"},
    {Phrase::Every,               "&Alle"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "&Sprache:"},
    {Phrase::OthersList,          "&Weitere Meldungen:"},
    {Phrase::TraysList,           "&Papierfächer:"},
    {Phrase::EquipmentList,       "A&usstattung:"},
    {Phrase::Close,               "S&chließen"},
    {Phrase::Connecting,          "Verbindung wird aufgebaut ..."},
    {Phrase::Asking,              "{1} wird abgefragt ..."},
    {Phrase::AnsweredAt,          "{1} hat um {2} geantwortet."},
    {Phrase::LastAnswerAt,        "Letzte Antwort um {1}, vor {2}: Papierfächer und Ausstattung sind auf diesem Stand."},
    {Phrase::NoAnswerSince,       "Keine Antwort seit {1}, also seit {2}."},
    {Phrase::SimulatedPrinter,    "Simulierter Drucker"},
    {Phrase::WrongAddress,        "'{1}' ist keine Druckeradresse; möglich sind HOST, HOST:PORT und [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Zustände des Druckers"},
    {Phrase::GalleryLanguage,     "Sprache"},
    {Phrase::CodeNumber,          "Code {1}"},
};
// clang-format on

}  // namespace stmon
