// French. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kFrenchPhrases[] = {
    {Phrase::Printer,             "Imprimante"},
    {Phrase::Model,               "Modèle"},
    {Phrase::Maker,               "Fabricant"},
    {Phrase::Description,         "Désignation"},
    {Phrase::Speaks,              "Langages"},
    {Phrase::Status,              "État"},
    {Phrase::Online,              "En ligne"},
    {Phrase::Conditions,          "Messages"},
    {Phrase::Trays,               "Bacs"},
    {Phrase::Bins,                "Bacs de sortie"},
    {Phrase::Options,             "Options"},
    {Phrase::PrinterLanguage,     "Langage"},
    {Phrase::Versions,            "Versions"},
    {Phrase::Number,              "Numéro"},
    {Phrase::Fonts,               "Polices"},

    {Phrase::Yes,                 "oui"},
    {Phrase::No,                  "non"},
    {Phrase::None,                "aucune"},
    {Phrase::VersionIs,           "version {1}"},
    {Phrase::NumberIs,            "numéro {1}"},
    {Phrase::InUse,               "utilisé"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "niveau {1}"},
    {Phrase::BinEmpty,            "vide"},
    {Phrase::BinNotFull,          "non plein"},
    {Phrase::BinFull,             "plein"},
    {Phrase::BinState,            "état {1}"},

    {Phrase::SeverityReport,      "info"},
    {Phrase::SeverityWarning,     "avertissement"},
    {Phrase::SeverityError,       "erreur"},
    {Phrase::SeverityUnknown,     "inconnu"},

    {Phrase::TrayBypass,          "Bac bypass"},
    {Phrase::TrayMultiPurpose,    "Bac multifonction"},
    {Phrase::TrayNumber,          "Bac {1}"},
    {Phrase::TrayFive,            "Bac 5"},
    {Phrase::TrayOther,           "Bac d'identifiant {1}"},
    {Phrase::BinNumber,           "Bac de sortie {1}"},
    {Phrase::BinOther,            "Bac de sortie inconnu"},

    {Phrase::PaperNone,           "sans papier"},
    {Phrase::PaperFree,           "format libre"},
    {Phrase::PaperPostcard,       "carte postale"},
    {Phrase::PaperMissing,        "non positionné"},
    {Phrase::PaperRotated,        "{1} pivoté"},
    {Phrase::PaperOther,          "papier de code {1}"},

    {Phrase::OptionDuplex,        "Unité recto verso"},
    {Phrase::OptionHardDisk,      "Disque dur"},
    {Phrase::OptionSort,          "Tri électronique"},
    {Phrase::OptionStapler,       "Agrafeuse"},
    {Phrase::OptionPuncher,       "Perforatrice"},
    {Phrase::OptionTray,          "Bac en option"},
    {Phrase::OptionOther,         "Option de code {1}"},
    {Phrase::LanguageUnknown,     "inconnu"},
    {Phrase::LanguageOther,       "Langage de code {1}"},

    {Phrase::Cyan,                "cyan"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "jaune"},
    {Phrase::Black,               "noir"},

    {Phrase::UnknownCondition,    "Message inconnu, code {1}"},
    {Phrase::TonerNearlyEmpty,    "Le toner est presque épuisé.\nAjoutez du toner."},
    {Phrase::OutputFull,          "Bac de sortie plein"},
    {Phrase::OutputFullDetail,    "Le bac de sortie est plein.\nRetirez le papier de la zone indiquée."},
    {Phrase::OutputNearlyFull,    "Le bac de sortie est presque plein.\nRetirez le papier du bac de sortie."},
    {Phrase::UnitR3,              "Veuillez contacter le service après-vente.\nUnité à remplacer\u00A0: R3"},
    {Phrase::RearCoverOpen,       "Le capot arrière du bac est ouvert.\nFermez le capot indiqué."},
    {Phrase::RearCoverOpenDuplex, "Le capot arrière du bac est ouvert.\nVérifiez la zone indiquée.\nLe capot arrière du bac 2 se trouve à l'intérieur de l'unité recto verso."},

    {Phrase::FirstAnswer,         "répond pour la première fois\u00A0: {1}"},
    {Phrase::Lost,                "aucune réponse exploitable ({1})\u00A0: {2}"},
    {Phrase::NeverAnswered,       "n'a encore jamais répondu"},
    {Phrase::LastAnswerAgo,       "dernière réponse il y a {1}"},
    {Phrase::Back,                "répond à nouveau ({1})\u00A0: {2}"},
    {Phrase::SilentFor,           "aucune réponse exploitable pendant {1}"},
    {Phrase::Flapping,            "change sans cesse, la suite une fois stable\u00A0: {1}"},
    {Phrase::Steady,              "de nouveau stable\u00A0: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Moniteur d'imprimante"},
    {Phrase::PrinterField,        "&Imprimante\u00A0:"},
    {Phrase::PollNow,             "I&nterroger"},
    {Phrase::Every,               "&Toutes les"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "&Langue\u00A0:"},
    {Phrase::OthersList,          "&Autres messages\u00A0:"},
    {Phrase::TraysList,           "&Bacs\u00A0:"},
    {Phrase::EquipmentList,       "É&quipement\u00A0:"},
    {Phrase::Close,               "&Fermer"},
    {Phrase::Connecting,          "Connexion en cours..."},
    {Phrase::Asking,              "Interrogation de {1} en cours..."},
    {Phrase::AnsweredAt,          "{1} a répondu à {2}."},
    {Phrase::LastAnswerAt,        "Dernière réponse à {1}, il y a {2}\u00A0: les bacs et l'équipement datent de ce moment."},
    {Phrase::NoAnswerSince,       "Aucune réponse depuis {1}, soit depuis {2}."},
    {Phrase::SimulatedPrinter,    "Imprimante simulée"},
    {Phrase::WrongAddress,        "'{1}' n'est pas une adresse d'imprimante\u00A0; les formes admises sont HOST, HOST:PORT et [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "États de l'imprimante"},
    {Phrase::GalleryLanguage,     "Langue"},
    {Phrase::CodeNumber,          "code {1}"},
};
// clang-format on

}  // namespace stmon
