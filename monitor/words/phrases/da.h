// Danish. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kDanishPhrases[] = {
    {Phrase::Printer,             "Printer"},
    {Phrase::Model,               "Model"},
    {Phrase::Maker,               "Producent"},
    {Phrase::Description,         "Beskrivelse"},
    {Phrase::Speaks,              "Understøttede sprog"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Meddelelser"},
    {Phrase::Trays,               "Papirbakker"},
    {Phrase::Bins,                "Udskriftsbakker"},
    {Phrase::Options,             "Ekstraudstyr"},
    {Phrase::PrinterLanguage,     "Printersprog"},
    {Phrase::Versions,            "Versioner"},
    {Phrase::Number,              "Nummer"},
    {Phrase::Fonts,               "Skrifttyper"},

    {Phrase::Yes,                 "ja"},
    {Phrase::No,                  "nej"},
    {Phrase::None,                "intet"},
    {Phrase::VersionIs,           "version {1}"},
    {Phrase::NumberIs,            "nummer {1}"},
    {Phrase::InUse,               "i brug"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "niveau {1}"},
    {Phrase::BinEmpty,            "tom"},
    {Phrase::BinNotFull,          "ikke fuld"},
    {Phrase::BinFull,             "fuld"},
    {Phrase::BinState,            "tilstand {1}"},

    {Phrase::SeverityReport,      "info"},
    {Phrase::SeverityWarning,     "advarsel"},
    {Phrase::SeverityError,       "fejl"},
    {Phrase::SeverityUnknown,     "ukendt"},

    {Phrase::TrayBypass,          "Bypassbakke"},
    {Phrase::TrayMultiPurpose,    "Multifunktionsbakke"},
    {Phrase::TrayNumber,          "Papirbakke {1}"},
    {Phrase::TrayFive,            "Papirbakke 5"},
    {Phrase::TrayOther,           "Papirbakke med id {1}"},
    {Phrase::BinNumber,           "Udskriftsbakke {1}"},
    {Phrase::BinOther,            "Ukendt udskriftsbakke"},

    {Phrase::PaperNone,           "intet papir"},
    {Phrase::PaperFree,           "frit format"},
    {Phrase::PaperPostcard,       "postkort"},
    {Phrase::PaperMissing,        "ikke isat"},
    {Phrase::PaperRotated,        "{1} roteret"},
    {Phrase::PaperOther,          "papir med kode {1}"},

    {Phrase::OptionDuplex,        "Duplexenhed"},
    {Phrase::OptionHardDisk,      "Harddisk"},
    {Phrase::OptionSort,          "Elektronisk sortering"},
    {Phrase::OptionStapler,       "Hæfteenhed"},
    {Phrase::OptionPuncher,       "Hulleenhed"},
    {Phrase::OptionTray,          "Ekstra papirbakke"},
    {Phrase::OptionOther,         "Ekstraudstyr med kode {1}"},
    {Phrase::LanguageUnknown,     "ukendt"},
    {Phrase::LanguageOther,       "Printersprog med kode {1}"},

    {Phrase::Cyan,                "cyan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "gul"},
    {Phrase::Black,               "sort"},

    {Phrase::UnknownCondition,    "Ukendt meddelelse, kode {1}"},
    {Phrase::TonerNearlyEmpty,    "Toneren er næsten opbrugt.\nPåfyld toner."},
    {Phrase::OutputFull,          "Udskriftsbakke fuld"},
    {Phrase::OutputFullDetail,    "Udskriftsbakken er fuld.\nFjern papiret fra det markerede område."},
    {Phrase::OutputNearlyFull,    "Udskriftsbakken er næsten fuld.\nFjern papiret fra udskriftsbakken."},
    {Phrase::UnitR3,              "Kontakt dit servicecenter.\nEnhed, der skal udskiftes: R3"},
    {Phrase::RearCoverOpen,       "Papirbakkens bagdæksel er åbent.\nLuk det markerede dæksel."},
    {Phrase::RearCoverOpenDuplex, "Papirbakkens bagdæksel er åbent.\nKontroller det markerede område.\nBagdækslet til papirbakke 2 er inde i duplexenheden."},

    {Phrase::FirstAnswer,         "svarer for første gang: {1}"},
    {Phrase::Lost,                "intet brugbart svar ({1}): {2}"},
    {Phrase::NeverAnswered,       "har aldrig svaret indtil nu"},
    {Phrase::LastAnswerAgo,       "seneste svar for {1} siden"},
    {Phrase::Back,                "svarer igen ({1}): {2}"},
    {Phrase::SilentFor,           "intet brugbart svar i {1}"},
    {Phrase::Flapping,            "skifter hele tiden, næste besked først når det er stabilt: {1}"},
    {Phrase::Steady,              "stabilt igen: {1}"},

    {Phrase::Seconds,             "{1} sek."},
    {Phrase::Minutes,             "{1} min."},
    {Phrase::Hours,               "{1} t. {2} min."},

    {Phrase::WindowTitle,         "Printerovervågning"},
    {Phrase::PrinterField,        "&Printer:"},
    {Phrase::PollNow,             "&Spørg nu"},
    {Phrase::Every,               "&Interval"},
    {Phrase::EverySeconds,        "sek."},
    {Phrase::LanguageField,       "Sp&rog:"},
    {Phrase::OthersList,          "Andre &meddelelser:"},
    {Phrase::TraysList,           "Papir&bakker:"},
    {Phrase::EquipmentList,       "&Udstyr:"},
    {Phrase::Close,               "&Luk"},
    {Phrase::Connecting,          "Opretter forbindelse..."},
    {Phrase::Asking,              "Spørger {1}..."},
    {Phrase::AnsweredAt,          "{1} svarede kl. {2}."},
    {Phrase::LastAnswerAt,        "Seneste svar kl. {1}, for {2} siden: papirbakker og udstyr vises som på det tidspunkt."},
    {Phrase::NoAnswerSince,       "Intet svar siden kl. {1}, for {2} siden."},
    {Phrase::SimulatedPrinter,    "Simuleret printer"},
    {Phrase::WrongAddress,        "'{1}' er ikke en printeradresse; gyldige er HOST, HOST:PORT og [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Printerens tilstande"},
    {Phrase::GalleryLanguage,     "Sprog"},
    {Phrase::CodeNumber,          "kode {1}"},
};
// clang-format on

}  // namespace stmon
