// Polish. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kPolishPhrases[] = {
    {Phrase::Printer,             "Drukarka"},
    {Phrase::Model,               "Model"},
    {Phrase::Maker,               "Producent"},
    {Phrase::Description,         "Opis"},
    {Phrase::Speaks,              "Języki drukarki"},
    {Phrase::Status,              "Stan"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Komunikaty"},
    {Phrase::Trays,               "Tace"},
    {Phrase::Bins,                "Tace wyjściowe"},
    {Phrase::Options,             "Opcje"},
    {Phrase::PrinterLanguage,     "Język drukarki"},
    {Phrase::Versions,            "Wersje"},
    {Phrase::Number,              "Numer"},
    {Phrase::Fonts,               "Czcionki"},

    {Phrase::Yes,                 "tak"},
    {Phrase::No,                  "nie"},
    {Phrase::None,                "brak"},
    {Phrase::VersionIs,           "wersja {1}"},
    {Phrase::NumberIs,            "numer {1}"},
    {Phrase::InUse,               "w użyciu"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "poziom {1}"},
    {Phrase::BinEmpty,            "pusta"},
    {Phrase::BinNotFull,          "niepełna"},
    {Phrase::BinFull,             "pełna"},
    {Phrase::BinState,            "stan {1}"},

    {Phrase::SeverityReport,      "informacja"},
    {Phrase::SeverityWarning,     "ostrzeżenie"},
    {Phrase::SeverityError,       "błąd"},
    {Phrase::SeverityUnknown,     "nieznany"},

    {Phrase::TrayBypass,          "Taca ręczna"},
    {Phrase::TrayMultiPurpose,    "Taca uniwersalna"},
    {Phrase::TrayNumber,          "Taca {1}"},
    {Phrase::TrayFive,            "Taca 5"},
    {Phrase::TrayOther,           "Taca o identyfikatorze {1}"},
    {Phrase::BinNumber,           "Taca wyjściowa {1}"},
    {Phrase::BinOther,            "Nieznana taca wyjściowa"},

    {Phrase::PaperNone,           "brak papieru"},
    {Phrase::PaperFree,           "dowolny format"},
    {Phrase::PaperPostcard,       "pocztówka"},
    {Phrase::PaperMissing,        "niewłożona"},
    {Phrase::PaperRotated,        "{1} obrócony"},
    {Phrase::PaperOther,          "papier o kodzie {1}"},

    {Phrase::OptionDuplex,        "Moduł druku dwustronnego"},
    {Phrase::OptionHardDisk,      "Dysk twardy"},
    {Phrase::OptionSort,          "Sortowanie elektroniczne"},
    {Phrase::OptionStapler,       "Zszywacz"},
    {Phrase::OptionPuncher,       "Dziurkacz"},
    {Phrase::OptionTray,          "Taca opcjonalna"},
    {Phrase::OptionOther,         "Opcja o kodzie {1}"},
    {Phrase::LanguageUnknown,     "nieznany"},
    {Phrase::LanguageOther,       "Język o kodzie {1}"},

    {Phrase::Cyan,                "cyjan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "żółty"},
    {Phrase::Black,               "czarny"},

    {Phrase::UnknownCondition,    "Nieznany komunikat, kod {1}"},
    {Phrase::TonerNearlyEmpty,    "Toner jest na wyczerpaniu.\nUzupełnij toner."},
    {Phrase::OutputFull,          "Pełna taca wyjściowa"},
    {Phrase::OutputFullDetail,    "Taca wyjściowa jest pełna.\nUsuń papier ze wskazanego obszaru."},
    {Phrase::OutputNearlyFull,    "Taca wyjściowa jest prawie pełna.\nUsuń papier z tacy wyjściowej."},
    {Phrase::UnitR3,              "Skontaktuj się z serwisem.\nModuł do wymiany: R3"},
    {Phrase::RearCoverOpen,       "Tylna pokrywa tacy jest otwarta.\nZamknij wskazaną pokrywę."},
    {Phrase::RearCoverOpenDuplex, "Tylna pokrywa tacy jest otwarta.\nSprawdź wskazany obszar.\nTylna pokrywa tacy 2 znajduje się wewnątrz modułu druku dwustronnego."},

    {Phrase::FirstAnswer,         "odpowiada po raz pierwszy: {1}"},
    {Phrase::Lost,                "brak użytecznej odpowiedzi ({1}): {2}"},
    {Phrase::NeverAnswered,       "dotąd nigdy nie odpowiedziała"},
    {Phrase::LastAnswerAgo,       "ostatnia odpowiedź {1} temu"},
    {Phrase::Back,                "znów odpowiada ({1}): {2}"},
    {Phrase::SilentFor,           "brak użytecznej odpowiedzi przez {1}"},
    {Phrase::Flapping,            "ciągle się zmienia, kolejny komunikat dopiero po ustabilizowaniu: {1}"},
    {Phrase::Steady,              "znów stabilne: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} godz. {2} min"},

    {Phrase::WindowTitle,         "Monitor drukarki"},
    {Phrase::PrinterField,        "&Drukarka:"},
    {Phrase::PollNow,             "&Sprawdź teraz"},
    {Phrase::Every,               "&Co"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "&Język:"},
    {Phrase::OthersList,          "&Inne komunikaty:"},
    {Phrase::TraysList,           "&Tace:"},
    {Phrase::EquipmentList,       "&Wyposażenie:"},
    {Phrase::Close,               "&Zamknij"},
    {Phrase::Connecting,          "Łączenie..."},
    {Phrase::Asking,              "Odpytywanie {1}..."},
    {Phrase::AnsweredAt,          "{1}: odpowiedź o {2}."},
    {Phrase::LastAnswerAt,        "Ostatnia odpowiedź o {1}, {2} temu: tace i wyposażenie są z tej chwili."},
    {Phrase::NoAnswerSince,       "Brak odpowiedzi od {1}, czyli od {2}."},
    {Phrase::SimulatedPrinter,    "Symulowana drukarka"},
    {Phrase::WrongAddress,        "'{1}' nie jest adresem drukarki; dozwolone są HOST, HOST:PORT i [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Stany drukarki"},
    {Phrase::GalleryLanguage,     "Język"},
    {Phrase::CodeNumber,          "kod {1}"},
};
// clang-format on

}  // namespace stmon
