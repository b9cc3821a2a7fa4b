// Finnish. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kFinnishPhrases[] = {
    {Phrase::Printer,             "Tulostin"},
    {Phrase::Model,               "Malli"},
    {Phrase::Maker,               "Valmistaja"},
    {Phrase::Description,         "Kuvaus"},
    {Phrase::Speaks,              "Tulostinkielet"},
    {Phrase::Status,              "Tila"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Ilmoitukset"},
    {Phrase::Trays,               "Paperikasetit"},
    {Phrase::Bins,                "Luovutustasot"},
    {Phrase::Options,             "Lisälaitteet"},
    {Phrase::PrinterLanguage,     "Tulostinkieli"},
    {Phrase::Versions,            "Versiot"},
    {Phrase::Number,              "Numero"},
    {Phrase::Fonts,               "Fontit"},

    {Phrase::Yes,                 "kyllä"},
    {Phrase::No,                  "ei"},
    {Phrase::None,                "ei ole"},
    {Phrase::VersionIs,           "versio {1}"},
    {Phrase::NumberIs,            "numero {1}"},
    {Phrase::InUse,               "käytössä"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "määrä {1}"},
    {Phrase::BinEmpty,            "tyhjä"},
    {Phrase::BinNotFull,          "ei täynnä"},
    {Phrase::BinFull,             "täynnä"},
    {Phrase::BinState,            "tila {1}"},

    {Phrase::SeverityReport,      "ilmoitus"},
    {Phrase::SeverityWarning,     "varoitus"},
    {Phrase::SeverityError,       "virhe"},
    {Phrase::SeverityUnknown,     "tuntematon"},

    {Phrase::TrayBypass,          "Ohisyöttötaso"},
    {Phrase::TrayMultiPurpose,    "Monitoimikasetti"},
    {Phrase::TrayNumber,          "Paperikasetti {1}"},
    {Phrase::TrayFive,            "Paperikasetti 5"},
    {Phrase::TrayOther,           "Paperikasetti, tunnus {1}"},
    {Phrase::BinNumber,           "Luovutustaso {1}"},
    {Phrase::BinOther,            "Tuntematon luovutustaso"},

    {Phrase::PaperNone,           "ei paperia"},
    {Phrase::PaperFree,           "vapaa koko"},
    {Phrase::PaperPostcard,       "postikortti"},
    {Phrase::PaperMissing,        "ei paikallaan"},
    {Phrase::PaperRotated,        "{1} käännetty"},
    {Phrase::PaperOther,          "paperi, koodi {1}"},

    {Phrase::OptionDuplex,        "Duplex-yksikkö"},
    {Phrase::OptionHardDisk,      "Kiintolevy"},
    {Phrase::OptionSort,          "Sähköinen lajittelu"},
    {Phrase::OptionStapler,       "Nitoja"},
    {Phrase::OptionPuncher,       "Rei'itin"},
    {Phrase::OptionTray,          "Lisäpaperikasetti"},
    {Phrase::OptionOther,         "Lisälaite, koodi {1}"},
    {Phrase::LanguageUnknown,     "tuntematon"},
    {Phrase::LanguageOther,       "Tulostinkieli, koodi {1}"},

    {Phrase::Cyan,                "syaani"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "keltainen"},
    {Phrase::Black,               "musta"},

    {Phrase::UnknownCondition,    "Tuntematon ilmoitus, koodi {1}"},
    {Phrase::TonerNearlyEmpty,    "Väriaine on melkein lopussa.\nLisää väriainetta."},
    {Phrase::OutputFull,          "Luovutustaso täynnä"},
    {Phrase::OutputFullDetail,    "Luovutustaso on täynnä.\nPoista paperi osoitetulta alueelta."},
    {Phrase::OutputNearlyFull,    "Luovutustaso on melkein täynnä.\nPoista paperi luovutustasolta."},
    {Phrase::UnitR3,              "Ota yhteys huoltokeskukseen.\nVaihdettava yksikkö: R3"},
    {Phrase::RearCoverOpen,       "Paperikasetin takakansi on auki.\nSulje osoitettu kansi."},
    {Phrase::RearCoverOpenDuplex, "Paperikasetin takakansi on auki.\nTarkista osoitettu alue.\nPaperikasetin 2 takakansi on duplex-yksikön sisällä."},

    {Phrase::FirstAnswer,         "vastaa ensimmäisen kerran: {1}"},
    {Phrase::Lost,                "ei käyttökelpoista vastausta ({1}): {2}"},
    {Phrase::NeverAnswered,       "ei ole vastannut vielä kertaakaan"},
    {Phrase::LastAnswerAgo,       "viimeisin vastaus {1} sitten"},
    {Phrase::Back,                "vastaa taas ({1}): {2}"},
    {Phrase::SilentFor,           "ilman käyttökelpoista vastausta {1}"},
    {Phrase::Flapping,            "vaihtelee jatkuvasti, seuraava ilmoitus vasta kun tila on vakaa: {1}"},
    {Phrase::Steady,              "jälleen vakaa: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Tulostimen valvonta"},
    {Phrase::PrinterField,        "&Tulostin:"},
    {Phrase::PollNow,             "&Kysy nyt"},
    {Phrase::Every,               "&Väli"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "K&ieli:"},
    {Phrase::OthersList,          "&Muut ilmoitukset:"},
    {Phrase::TraysList,           "&Paperikasetit:"},
    {Phrase::EquipmentList,       "V&arustus:"},
    {Phrase::Close,               "S&ulje"},
    {Phrase::Connecting,          "Yhdistetään..."},
    {Phrase::Asking,              "Kysytään: {1}..."},
    {Phrase::AnsweredAt,          "{1} vastasi klo {2}."},
    {Phrase::LastAnswerAt,        "Viimeisin vastaus klo {1}, {2} sitten: paperikasetit ja varustus ovat siltä hetkeltä."},
    {Phrase::NoAnswerSince,       "Ei vastausta klo {1} jälkeen, {2} sitten."},
    {Phrase::SimulatedPrinter,    "Simuloitu tulostin"},
    {Phrase::WrongAddress,        "'{1}' ei ole tulostimen osoite; kelpaavia ovat HOST, HOST:PORT ja [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Tulostimen tilat"},
    {Phrase::GalleryLanguage,     "Kieli"},
    {Phrase::CodeNumber,          "koodi {1}"},
};
// clang-format on

}  // namespace stmon
