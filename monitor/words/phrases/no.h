// Norwegian (Bokmål). What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kNorwegianPhrases[] = {
    {Phrase::Printer,             "Skriver"},
    {Phrase::Model,               "Modell"},
    {Phrase::Maker,               "Produsent"},
    {Phrase::Description,         "Beskrivelse"},
    {Phrase::Speaks,              "Støttede språk"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Meldinger"},
    {Phrase::Trays,               "Papirskuffer"},
    {Phrase::Bins,                "Utskuffer"},
    {Phrase::Options,             "Ekstrautstyr"},
    {Phrase::PrinterLanguage,     "Skriverspråk"},
    {Phrase::Versions,            "Versjoner"},
    {Phrase::Number,              "Nummer"},
    {Phrase::Fonts,               "Skrifter"},

    {Phrase::Yes,                 "ja"},
    {Phrase::No,                  "nei"},
    {Phrase::None,                "ikke noe"},
    {Phrase::VersionIs,           "versjon {1}"},
    {Phrase::NumberIs,            "nummer {1}"},
    {Phrase::InUse,               "i bruk"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "nivå {1}"},
    {Phrase::BinEmpty,            "tom"},
    {Phrase::BinNotFull,          "ikke full"},
    {Phrase::BinFull,             "full"},
    {Phrase::BinState,            "tilstand {1}"},

    {Phrase::SeverityReport,      "info"},
    {Phrase::SeverityWarning,     "advarsel"},
    {Phrase::SeverityError,       "feil"},
    {Phrase::SeverityUnknown,     "ukjent"},

    {Phrase::TrayBypass,          "Manuell mateskuff"},
    {Phrase::TrayMultiPurpose,    "Flerfunksjonsskuff"},
    {Phrase::TrayNumber,          "Papirskuff {1}"},
    {Phrase::TrayFive,            "Papirskuff 5"},
    {Phrase::TrayOther,           "Papirskuff med ID {1}"},
    {Phrase::BinNumber,           "Utskuff {1}"},
    {Phrase::BinOther,            "Ukjent utskuff"},

    {Phrase::PaperNone,           "tom for papir"},
    {Phrase::PaperFree,           "fritt format"},
    {Phrase::PaperPostcard,       "postkort"},
    {Phrase::PaperMissing,        "ikke satt inn"},
    {Phrase::PaperRotated,        "{1} rotert"},
    {Phrase::PaperOther,          "papir med kode {1}"},

    {Phrase::OptionDuplex,        "Dupleksenhet"},
    {Phrase::OptionHardDisk,      "Harddisk"},
    {Phrase::OptionSort,          "Elektronisk sortering"},
    {Phrase::OptionStapler,       "Stifteenhet"},
    {Phrase::OptionPuncher,       "Hulleenhet"},
    {Phrase::OptionTray,          "Ekstra papirskuff"},
    {Phrase::OptionOther,         "Ekstrautstyr med kode {1}"},
    {Phrase::LanguageUnknown,     "ukjent"},
    {Phrase::LanguageOther,       "Skriverspråk med kode {1}"},

    {Phrase::Cyan,                "cyan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "gul"},
    {Phrase::Black,               "svart"},

    {Phrase::UnknownCondition,    "Ukjent melding, kode {1}"},
    {Phrase::TonerNearlyEmpty,    "Det er nesten tomt for toner.\nFyll på toner."},
    {Phrase::OutputFull,          "Utskuff full"},
    {Phrase::OutputFullDetail,    "Utskuffen er full.\nFjern papiret fra det markerte området."},
    {Phrase::OutputNearlyFull,    "Utskuffen er nesten full.\nFjern papiret fra utskuffen."},
    {Phrase::UnitR3,              "Kontakt servicesenteret.\nEnhet som må byttes: R3"},
    {Phrase::RearCoverOpen,       "Bakdekselet på papirskuffen er åpent.\nLukk det markerte dekselet."},
    {Phrase::RearCoverOpenDuplex, "Bakdekselet på papirskuffen er åpent.\nKontroller det markerte området.\nBakdekselet på papirskuff 2 er inne i dupleksenheten."},

    {Phrase::FirstAnswer,         "svarer for første gang: {1}"},
    {Phrase::Lost,                "ikke noe brukbart svar ({1}): {2}"},
    {Phrase::NeverAnswered,       "har aldri svart hittil"},
    {Phrase::LastAnswerAgo,       "siste svar for {1} siden"},
    {Phrase::Back,                "svarer igjen ({1}): {2}"},
    {Phrase::SilentFor,           "ikke noe brukbart svar på {1}"},
    {Phrase::Flapping,            "skifter hele tiden, neste melding først når det er stabilt: {1}"},
    {Phrase::Steady,              "stabilt igjen: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} t {2} min"},

    {Phrase::WindowTitle,         "Skriverovervåking"},
    {Phrase::PrinterField,        "&Skriver:"},
    {Phrase::PollNow,             "Spør &nå"},
    {Phrase::Every,               "&Intervall"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "Sp&råk:"},
    {Phrase::OthersList,          "Andre &meldinger:"},
    {Phrase::TraysList,           "&Papirskuffer:"},
    {Phrase::EquipmentList,       "&Utstyr:"},
    {Phrase::Close,               "&Lukk"},
    {Phrase::Connecting,          "Kobler til..."},
    {Phrase::Asking,              "Spør {1}..."},
    {Phrase::AnsweredAt,          "{1} svarte kl. {2}."},
    {Phrase::LastAnswerAt,        "Siste svar kl. {1}, for {2} siden: papirskuffer og utstyr vises slik de var da."},
    {Phrase::NoAnswerSince,       "Ikke noe svar siden kl. {1}, for {2} siden."},
    {Phrase::SimulatedPrinter,    "Simulert skriver"},
    {Phrase::WrongAddress,        "'{1}' er ikke en skriveradresse; gyldige er HOST, HOST:PORT og [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Skriverens tilstander"},
    {Phrase::GalleryLanguage,     "Språk"},
    {Phrase::CodeNumber,          "kode {1}"},
};
// clang-format on

}  // namespace stmon
