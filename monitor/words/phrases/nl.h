// Dutch. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kDutchPhrases[] = {
    {Phrase::Printer,             "Printer"},
    {Phrase::Model,               "Model"},
    {Phrase::Maker,               "Fabrikant"},
    {Phrase::Description,         "Omschrijving"},
    {Phrase::Speaks,              "Printertalen"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Meldingen"},
    {Phrase::Trays,               "Papierladen"},
    {Phrase::Bins,                "Uitvoerladen"},
    {Phrase::Options,             "Opties"},
    {Phrase::PrinterLanguage,     "Printertaal"},
    {Phrase::Versions,            "Versies"},
    {Phrase::Number,              "Nummer"},
    {Phrase::Fonts,               "Lettertypen"},

    {Phrase::Yes,                 "ja"},
    {Phrase::No,                  "nee"},
    {Phrase::None,                "geen"},
    {Phrase::VersionIs,           "versie {1}"},
    {Phrase::NumberIs,            "nummer {1}"},
    {Phrase::InUse,               "in gebruik"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "niveau {1}"},
    {Phrase::BinEmpty,            "leeg"},
    {Phrase::BinNotFull,          "niet vol"},
    {Phrase::BinFull,             "vol"},
    {Phrase::BinState,            "toestand {1}"},

    {Phrase::SeverityReport,      "info"},
    {Phrase::SeverityWarning,     "waarschuwing"},
    {Phrase::SeverityError,       "fout"},
    {Phrase::SeverityUnknown,     "onbekend"},

    {Phrase::TrayBypass,          "Handinvoerlade"},
    {Phrase::TrayMultiPurpose,    "Multifunctionele lade"},
    {Phrase::TrayNumber,          "Papierlade {1}"},
    {Phrase::TrayFive,            "Papierlade 5"},
    {Phrase::TrayOther,           "Papierlade met ID {1}"},
    {Phrase::BinNumber,           "Uitvoerlade {1}"},
    {Phrase::BinOther,            "Onbekende uitvoerlade"},

    {Phrase::PaperNone,           "geen papier"},
    {Phrase::PaperFree,           "vrij formaat"},
    {Phrase::PaperPostcard,       "briefkaart"},
    {Phrase::PaperMissing,        "niet geplaatst"},
    {Phrase::PaperRotated,        "{1} gedraaid"},
    {Phrase::PaperOther,          "papier met code {1}"},

    {Phrase::OptionDuplex,        "Duplexeenheid"},
    {Phrase::OptionHardDisk,      "Harde schijf"},
    {Phrase::OptionSort,          "Elektronisch sorteren"},
    {Phrase::OptionStapler,       "Nieteenheid"},
    {Phrase::OptionPuncher,       "Perforatie-eenheid"},
    {Phrase::OptionTray,          "Optionele papierlade"},
    {Phrase::OptionOther,         "Optie met code {1}"},
    {Phrase::LanguageUnknown,     "onbekend"},
    {Phrase::LanguageOther,       "Printertaal met code {1}"},

    {Phrase::Cyan,                "cyaan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "geel"},
    {Phrase::Black,               "zwart"},

    {Phrase::UnknownCondition,    "Onbekende melding, code {1}"},
    {Phrase::TonerNearlyEmpty,    "De toner is bijna op.\nVul toner bij."},
    {Phrase::OutputFull,          "Uitvoerlade vol"},
    {Phrase::OutputFullDetail,    "De uitvoerlade is vol.\nVerwijder het papier uit het aangegeven gedeelte."},
    {Phrase::OutputNearlyFull,    "De uitvoerlade is bijna vol.\nVerwijder het papier uit de uitvoerlade."},
    {Phrase::UnitR3,              "Bel uw servicecentrum.\nTe vervangen eenheid: R3"},
    {Phrase::RearCoverOpen,       "De achterklep van de papierlade staat open.\nSluit de aangegeven klep."},
    {Phrase::RearCoverOpenDuplex, "De achterklep van de papierlade staat open.\nControleer het aangegeven gedeelte.\nDe achterklep van papierlade 2 bevindt zich in de duplexeenheid."},

    {Phrase::FirstAnswer,         "antwoordt voor het eerst: {1}"},
    {Phrase::Lost,                "geen bruikbaar antwoord ({1}): {2}"},
    {Phrase::NeverAnswered,       "tot nu toe nooit geantwoord"},
    {Phrase::LastAnswerAgo,       "laatste antwoord {1} geleden"},
    {Phrase::Back,                "antwoordt weer ({1}): {2}"},
    {Phrase::SilentFor,           "{1} geen bruikbaar antwoord"},
    {Phrase::Flapping,            "wisselt steeds, volgende melding pas als het stabiel is: {1}"},
    {Phrase::Steady,              "weer stabiel: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} u {2} min"},

    {Phrase::WindowTitle,         "Printermonitor"},
    {Phrase::PrinterField,        "&Printer:"},
    {Phrase::PollNow,             "&Nu opvragen"},
    {Phrase::Every,               "&Elke"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "&Taal:"},
    {Phrase::OthersList,          "Andere &meldingen:"},
    {Phrase::TraysList,           "Papier&laden:"},
    {Phrase::EquipmentList,       "&Uitrusting:"},
    {Phrase::Close,               "&Sluiten"},
    {Phrase::Connecting,          "Bezig met verbinden..."},
    {Phrase::Asking,              "Bezig met opvragen van {1}..."},
    {Phrase::AnsweredAt,          "{1} antwoordde om {2}."},
    {Phrase::LastAnswerAt,        "Laatste antwoord om {1}, {2} geleden: papierladen en uitrusting zijn van dat moment."},
    {Phrase::NoAnswerSince,       "Geen antwoord sinds {1}, {2} geleden."},
    {Phrase::SimulatedPrinter,    "Gesimuleerde printer"},
    {Phrase::WrongAddress,        "'{1}' is geen printeradres; mogelijk zijn HOST, HOST:PORT en [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Toestanden van de printer"},
    {Phrase::GalleryLanguage,     "Taal"},
    {Phrase::CodeNumber,          "code {1}"},
};
// clang-format on

}  // namespace stmon
