// Czech. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kCzechPhrases[] = {
    {Phrase::Printer,             "Tiskárna"},
    {Phrase::Model,               "Model"},
    {Phrase::Maker,               "Výrobce"},
    {Phrase::Description,         "Označení"},
    {Phrase::Speaks,              "Jazyky tiskárny"},
    {Phrase::Status,              "Stav"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Hlášení"},
    {Phrase::Trays,               "Zásobníky"},
    {Phrase::Bins,                "Výstupní přihrádky"},
    {Phrase::Options,             "Příslušenství"},
    {Phrase::PrinterLanguage,     "Jazyk tiskárny"},
    {Phrase::Versions,            "Verze"},
    {Phrase::Number,              "Číslo"},
    {Phrase::Fonts,               "Písma"},

    {Phrase::Yes,                 "ano"},
    {Phrase::No,                  "ne"},
    {Phrase::None,                "žádné"},
    {Phrase::VersionIs,           "verze {1}"},
    {Phrase::NumberIs,            "číslo {1}"},
    {Phrase::InUse,               "používá se"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "úroveň {1}"},
    {Phrase::BinEmpty,            "prázdná"},
    {Phrase::BinNotFull,          "není plná"},
    {Phrase::BinFull,             "plná"},
    {Phrase::BinState,            "stav {1}"},

    {Phrase::SeverityReport,      "informace"},
    {Phrase::SeverityWarning,     "varování"},
    {Phrase::SeverityError,       "chyba"},
    {Phrase::SeverityUnknown,     "neznámé"},

    {Phrase::TrayBypass,          "Zásobník ručního podávání"},
    {Phrase::TrayMultiPurpose,    "Víceúčelový zásobník"},
    {Phrase::TrayNumber,          "Zásobník {1}"},
    {Phrase::TrayFive,            "Zásobník 5"},
    {Phrase::TrayOther,           "Zásobník s ID {1}"},
    {Phrase::BinNumber,           "Výstupní přihrádka {1}"},
    {Phrase::BinOther,            "Neznámá výstupní přihrádka"},

    {Phrase::PaperNone,           "bez papíru"},
    {Phrase::PaperFree,           "volný formát"},
    {Phrase::PaperPostcard,       "pohlednice"},
    {Phrase::PaperMissing,        "není vložen"},
    {Phrase::PaperRotated,        "{1} otočený"},
    {Phrase::PaperOther,          "papír s kódem {1}"},

    {Phrase::OptionDuplex,        "Duplexní jednotka"},
    {Phrase::OptionHardDisk,      "Pevný disk"},
    {Phrase::OptionSort,          "Elektronické třídění"},
    {Phrase::OptionStapler,       "Sešívačka"},
    {Phrase::OptionPuncher,       "Děrovačka"},
    {Phrase::OptionTray,          "Volitelný zásobník"},
    {Phrase::OptionOther,         "Příslušenství s kódem {1}"},
    {Phrase::LanguageUnknown,     "neznámý"},
    {Phrase::LanguageOther,       "Jazyk s kódem {1}"},

    {Phrase::Cyan,                "azurová"},
    {Phrase::Magenta,             "purpurová"},
    {Phrase::Yellow,              "žlutá"},
    {Phrase::Black,               "černá"},

    {Phrase::UnknownCondition,    "Neznámé hlášení, kód {1}"},
    {Phrase::TonerNearlyEmpty,    "Dochází toner.\nDoplňte toner."},
    {Phrase::OutputFull,          "Plná výstupní přihrádka"},
    {Phrase::OutputFullDetail,    "Výstupní přihrádka je plná.\nOdstraňte papír z vyznačené části."},
    {Phrase::OutputNearlyFull,    "Výstupní přihrádka je téměř plná.\nOdstraňte papír z výstupní přihrádky."},
    {Phrase::UnitR3,              "Kontaktujte servisní středisko.\nJednotka k výměně: R3"},
    {Phrase::RearCoverOpen,       "Zadní kryt zásobníku je otevřený.\nZavřete vyznačený kryt."},
    {Phrase::RearCoverOpenDuplex, "Zadní kryt zásobníku je otevřený.\nZkontrolujte vyznačenou část.\nZadní kryt zásobníku 2 je uvnitř duplexní jednotky."},

    {Phrase::FirstAnswer,         "odpovídá poprvé: {1}"},
    {Phrase::Lost,                "žádná použitelná odpověď ({1}): {2}"},
    {Phrase::NeverAnswered,       "dosud nikdy neodpověděla"},
    {Phrase::LastAnswerAgo,       "poslední odpověď před {1}"},
    {Phrase::Back,                "opět odpovídá ({1}): {2}"},
    {Phrase::SilentFor,           "{1} bez použitelné odpovědi"},
    {Phrase::Flapping,            "stále se mění, další zpráva až po ustálení: {1}"},
    {Phrase::Steady,              "opět ustáleno: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Monitor tiskárny"},
    {Phrase::PrinterField,        "&Tiskárna:"},
    {Phrase::PollNow,             "Z&jistit stav"},
    {Phrase::Every,               "&Každých"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "J&azyk:"},
    {Phrase::OthersList,          "&Další hlášení:"},
    {Phrase::TraysList,           "Zá&sobníky:"},
    {Phrase::EquipmentList,       "&Vybavení:"},
    {Phrase::Close,               "&Zavřít"},
    {Phrase::Connecting,          "Připojování..."},
    {Phrase::Asking,              "Zjišťování stavu {1}..."},
    {Phrase::AnsweredAt,          "{1}: odpověď v {2}."},
    {Phrase::LastAnswerAt,        "Poslední odpověď v {1}, před {2}: zásobníky a vybavení odpovídají této době."},
    {Phrase::NoAnswerSince,       "Žádná odpověď od {1}, tedy {2}."},
    {Phrase::SimulatedPrinter,    "Simulovaná tiskárna"},
    {Phrase::WrongAddress,        "'{1}' není adresa tiskárny; možné tvary jsou HOST, HOST:PORT a [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Stavy tiskárny"},
    {Phrase::GalleryLanguage,     "Jazyk"},
    {Phrase::CodeNumber,          "kód {1}"},
};
// clang-format on

}  // namespace stmon
