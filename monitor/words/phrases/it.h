// Italian. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kItalianPhrases[] = {
    {Phrase::Printer,             "Stampante"},
    {Phrase::Model,               "Modello"},
    {Phrase::Maker,               "Produttore"},
    {Phrase::Description,         "Descrizione"},
    {Phrase::Speaks,              "Linguaggi"},
    {Phrase::Status,              "Stato"},
    {Phrase::Online,              "In linea"},
    {Phrase::Conditions,          "Messaggi"},
    {Phrase::Trays,               "Vassoi"},
    {Phrase::Bins,                "Vassoi di uscita"},
    {Phrase::Options,             "Opzioni"},
    {Phrase::PrinterLanguage,     "Linguaggio"},
    {Phrase::Versions,            "Versioni"},
    {Phrase::Number,              "Numero"},
    {Phrase::Fonts,               "Font"},

    {Phrase::Yes,                 "sì"},
    {Phrase::No,                  "no"},
    {Phrase::None,                "nessuna"},
    {Phrase::VersionIs,           "versione {1}"},
    {Phrase::NumberIs,            "numero {1}"},
    {Phrase::InUse,               "in uso"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "livello {1}"},
    {Phrase::BinEmpty,            "vuoto"},
    {Phrase::BinNotFull,          "non pieno"},
    {Phrase::BinFull,             "pieno"},
    {Phrase::BinState,            "stato {1}"},

    {Phrase::SeverityReport,      "nota"},
    {Phrase::SeverityWarning,     "avviso"},
    {Phrase::SeverityError,       "errore"},
    {Phrase::SeverityUnknown,     "sconosciuto"},

    {Phrase::TrayBypass,          "Vassoio bypass"},
    {Phrase::TrayMultiPurpose,    "Vassoio multiuso"},
    {Phrase::TrayNumber,          "Vassoio {1}"},
    {Phrase::TrayFive,            "Vassoio 5"},
    {Phrase::TrayOther,           "Vassoio con ID {1}"},
    {Phrase::BinNumber,           "Vassoio di uscita {1}"},
    {Phrase::BinOther,            "Vassoio di uscita sconosciuto"},

    {Phrase::PaperNone,           "senza carta"},
    {Phrase::PaperFree,           "formato libero"},
    {Phrase::PaperPostcard,       "cartolina"},
    {Phrase::PaperMissing,        "non inserito"},
    {Phrase::PaperRotated,        "{1} ruotato"},
    {Phrase::PaperOther,          "carta con codice {1}"},

    {Phrase::OptionDuplex,        "Unità fronte-retro"},
    {Phrase::OptionHardDisk,      "Disco rigido"},
    {Phrase::OptionSort,          "Fascicolazione elettronica"},
    {Phrase::OptionStapler,       "Pinzatrice"},
    {Phrase::OptionPuncher,       "Perforatrice"},
    {Phrase::OptionTray,          "Vassoio opzionale"},
    {Phrase::OptionOther,         "Opzione con codice {1}"},
    {Phrase::LanguageUnknown,     "sconosciuto"},
    {Phrase::LanguageOther,       "Linguaggio con codice {1}"},

    {Phrase::Cyan,                "ciano"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "giallo"},
    {Phrase::Black,               "nero"},

    {Phrase::UnknownCondition,    "Messaggio sconosciuto, codice {1}"},
    {Phrase::TonerNearlyEmpty,    "Il toner è quasi esaurito.\nAggiungere toner."},
    {Phrase::OutputFull,          "Vassoio di uscita pieno"},
    {Phrase::OutputFullDetail,    "Il vassoio di uscita è pieno.\nRimuovere la carta dall'area indicata."},
    {Phrase::OutputNearlyFull,    "Il vassoio di uscita è quasi pieno.\nRimuovere la carta dal vassoio di uscita."},
    {Phrase::UnitR3,              "Contattare il centro assistenza.\nUnità da sostituire: R3"},
    {Phrase::RearCoverOpen,       "Il coperchio posteriore del vassoio è aperto.\nChiudere il coperchio indicato."},
    {Phrase::RearCoverOpenDuplex, "Il coperchio posteriore del vassoio è aperto.\nControllare l'area indicata.\nIl coperchio posteriore del vassoio 2 si trova all'interno dell'unità fronte-retro."},

    {Phrase::FirstAnswer,         "risponde per la prima volta: {1}"},
    {Phrase::Lost,                "nessuna risposta utilizzabile ({1}): {2}"},
    {Phrase::NeverAnswered,       "non ha ancora mai risposto"},
    {Phrase::LastAnswerAgo,       "ultima risposta {1} fa"},
    {Phrase::Back,                "risponde di nuovo ({1}): {2}"},
    {Phrase::SilentFor,           "nessuna risposta utilizzabile per {1}"},
    {Phrase::Flapping,            "continua a cambiare, altri avvisi solo quando sarà stabile: {1}"},
    {Phrase::Steady,              "di nuovo stabile: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Monitor stampante"},
    {Phrase::PrinterField,        "&Stampante:"},
    {Phrase::PollNow,             "&Interroga ora"},
    {Phrase::Every,               "&Ogni"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "&Lingua:"},
    {Phrase::OthersList,          "&Altri messaggi:"},
    {Phrase::TraysList,           "&Vassoi:"},
    {Phrase::EquipmentList,       "&Dotazione:"},
    {Phrase::Close,               "&Chiudi"},
    {Phrase::Connecting,          "Connessione in corso..."},
    {Phrase::Asking,              "Interrogazione di {1} in corso..."},
    {Phrase::AnsweredAt,          "{1} ha risposto alle {2}."},
    {Phrase::LastAnswerAt,        "Ultima risposta alle {1}, {2} fa: vassoi e dotazione sono riferiti a quel momento."},
    {Phrase::NoAnswerSince,       "Nessuna risposta dalle {1}, cioè da {2}."},
    {Phrase::SimulatedPrinter,    "Stampante simulata"},
    {Phrase::WrongAddress,        "'{1}' non è un indirizzo di stampante; sono ammessi HOST, HOST:PORT e [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Stati della stampante"},
    {Phrase::GalleryLanguage,     "Lingua"},
    {Phrase::CodeNumber,          "codice {1}"},
};
// clang-format on

}  // namespace stmon
