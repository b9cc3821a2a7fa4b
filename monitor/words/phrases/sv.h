// Swedish. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kSwedishPhrases[] = {
    {Phrase::Printer,             "Skrivare"},
    {Phrase::Model,               "Modell"},
    {Phrase::Maker,               "Tillverkare"},
    {Phrase::Description,         "Beskrivning"},
    {Phrase::Speaks,              "Språk som stöds"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Meddelanden"},
    {Phrase::Trays,               "Pappersfack"},
    {Phrase::Bins,                "Utmatningsfack"},
    {Phrase::Options,             "Tillbehör"},
    {Phrase::PrinterLanguage,     "Skrivarspråk"},
    {Phrase::Versions,            "Versioner"},
    {Phrase::Number,              "Nummer"},
    {Phrase::Fonts,               "Teckensnitt"},

    {Phrase::Yes,                 "ja"},
    {Phrase::No,                  "nej"},
    {Phrase::None,                "inga"},
    {Phrase::VersionIs,           "version {1}"},
    {Phrase::NumberIs,            "nummer {1}"},
    {Phrase::InUse,               "används"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "nivå {1}"},
    {Phrase::BinEmpty,            "tomt"},
    {Phrase::BinNotFull,          "inte fullt"},
    {Phrase::BinFull,             "fullt"},
    {Phrase::BinState,            "tillstånd {1}"},

    {Phrase::SeverityReport,      "info"},
    {Phrase::SeverityWarning,     "varning"},
    {Phrase::SeverityError,       "fel"},
    {Phrase::SeverityUnknown,     "okänt"},

    {Phrase::TrayBypass,          "Manuellt matningsfack"},
    {Phrase::TrayMultiPurpose,    "Flerfunktionsfack"},
    {Phrase::TrayNumber,          "Pappersfack {1}"},
    {Phrase::TrayFive,            "Pappersfack 5"},
    {Phrase::TrayOther,           "Pappersfack med id {1}"},
    {Phrase::BinNumber,           "Utmatningsfack {1}"},
    {Phrase::BinOther,            "Okänt utmatningsfack"},

    {Phrase::PaperNone,           "inget papper"},
    {Phrase::PaperFree,           "fritt format"},
    {Phrase::PaperPostcard,       "vykort"},
    {Phrase::PaperMissing,        "inte isatt"},
    {Phrase::PaperRotated,        "{1} roterat"},
    {Phrase::PaperOther,          "papper med kod {1}"},

    {Phrase::OptionDuplex,        "Duplexenhet"},
    {Phrase::OptionHardDisk,      "Hårddisk"},
    {Phrase::OptionSort,          "Elektronisk sortering"},
    {Phrase::OptionStapler,       "Häftenhet"},
    {Phrase::OptionPuncher,       "Hålslagsenhet"},
    {Phrase::OptionTray,          "Extra pappersfack"},
    {Phrase::OptionOther,         "Tillbehör med kod {1}"},
    {Phrase::LanguageUnknown,     "okänt"},
    {Phrase::LanguageOther,       "Skrivarspråk med kod {1}"},

    {Phrase::Cyan,                "cyan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "gul"},
    {Phrase::Black,               "svart"},

    {Phrase::UnknownCondition,    "Okänt meddelande, kod {1}"},
    {Phrase::TonerNearlyEmpty,    "Tonern är nästan slut.\nFyll på toner."},
    {Phrase::OutputFull,          "Utmatningsfack fullt"},
    {Phrase::OutputFullDetail,    "Utmatningsfacket är fullt.\nTa bort papperet från det markerade området."},
    {Phrase::OutputNearlyFull,    "Utmatningsfacket är nästan fullt.\nTa bort papperet från utmatningsfacket."},
    {Phrase::UnitR3,              "Kontakta ditt servicecenter.\nEnhet som behöver bytas: R3"},
    {Phrase::RearCoverOpen,       "Pappersfackets bakre lucka är öppen.\nStäng den markerade luckan."},
    {Phrase::RearCoverOpenDuplex, "Pappersfackets bakre lucka är öppen.\nKontrollera det markerade området.\nDen bakre luckan till pappersfack 2 finns inne i duplexenheten."},

    {Phrase::FirstAnswer,         "svarar för första gången: {1}"},
    {Phrase::Lost,                "inget användbart svar ({1}): {2}"},
    {Phrase::NeverAnswered,       "har aldrig svarat hittills"},
    {Phrase::LastAnswerAgo,       "senaste svar för {1} sedan"},
    {Phrase::Back,                "svarar igen ({1}): {2}"},
    {Phrase::SilentFor,           "inget användbart svar på {1}"},
    {Phrase::Flapping,            "växlar hela tiden, nästa besked först när det är stabilt: {1}"},
    {Phrase::Steady,              "stabilt igen: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} tim {2} min"},

    {Phrase::WindowTitle,         "Skrivarövervakning"},
    {Phrase::PrinterField,        "&Skrivare:"},
    {Phrase::PollNow,             "&Fråga nu"},
    {Phrase::Every,               "&Intervall"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "S&pråk:"},
    {Phrase::OthersList,          "Öv&riga meddelanden:"},
    {Phrase::TraysList,           "P&appersfack:"},
    {Phrase::EquipmentList,       "&Utrustning:"},
    {Phrase::Close,               "S&täng"},
    {Phrase::Connecting,          "Ansluter..."},
    {Phrase::Asking,              "Frågar {1}..."},
    {Phrase::AnsweredAt,          "{1} svarade kl. {2}."},
    {Phrase::LastAnswerAt,        "Senaste svar kl. {1}, för {2} sedan: pappersfack och utrustning visas som de var då."},
    {Phrase::NoAnswerSince,       "Inget svar sedan kl. {1}, för {2} sedan."},
    {Phrase::SimulatedPrinter,    "Simulerad skrivare"},
    {Phrase::WrongAddress,        "'{1}' är inte en skrivaradress; giltiga är HOST, HOST:PORT och [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Skrivarens tillstånd"},
    {Phrase::GalleryLanguage,     "Språk"},
    {Phrase::CodeNumber,          "kod {1}"},
};
// clang-format on

}  // namespace stmon
