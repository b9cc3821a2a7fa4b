// Spanish. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kSpanishPhrases[] = {
    {Phrase::Printer,             "Impresora"},
    {Phrase::Model,               "Modelo"},
    {Phrase::Maker,               "Fabricante"},
    {Phrase::Description,         "Descripción"},
    {Phrase::Speaks,              "Lenguajes"},
    {Phrase::Status,              "Estado"},
    {Phrase::Online,              "En línea"},
    {Phrase::Conditions,          "Mensajes"},
    {Phrase::Trays,               "Bandejas"},
    {Phrase::Bins,                "Bandejas de salida"},
    {Phrase::Options,             "Opciones"},
    {Phrase::PrinterLanguage,     "Lenguaje"},
    {Phrase::Versions,            "Versiones"},
    {Phrase::Number,              "Número"},
    {Phrase::Fonts,               "Fuentes"},

    {Phrase::Yes,                 "sí"},
    {Phrase::No,                  "no"},
    {Phrase::None,                "ninguna"},
    {Phrase::VersionIs,           "versión {1}"},
    {Phrase::NumberIs,            "número {1}"},
    {Phrase::InUse,               "en uso"},
    {Phrase::Percent,             "{1} %"},
    {Phrase::Level,               "nivel {1}"},
    {Phrase::BinEmpty,            "vacía"},
    {Phrase::BinNotFull,          "no llena"},
    {Phrase::BinFull,             "llena"},
    {Phrase::BinState,            "estado {1}"},

    {Phrase::SeverityReport,      "nota"},
    {Phrase::SeverityWarning,     "aviso"},
    {Phrase::SeverityError,       "error"},
    {Phrase::SeverityUnknown,     "desconocido"},

    {Phrase::TrayBypass,          "Bandeja bypass"},
    {Phrase::TrayMultiPurpose,    "Bandeja multipropósito"},
    {Phrase::TrayNumber,          "Bandeja {1}"},
    {Phrase::TrayFive,            "Bandeja 5"},
    {Phrase::TrayOther,           "Bandeja con ID {1}"},
    {Phrase::BinNumber,           "Bandeja de salida {1}"},
    {Phrase::BinOther,            "Bandeja de salida desconocida"},

    {Phrase::PaperNone,           "sin papel"},
    {Phrase::PaperFree,           "tamaño libre"},
    {Phrase::PaperPostcard,       "tarjeta postal"},
    {Phrase::PaperMissing,        "no colocada"},
    {Phrase::PaperRotated,        "{1} girado"},
    {Phrase::PaperOther,          "papel con código {1}"},

    {Phrase::OptionDuplex,        "Unidad dúplex"},
    {Phrase::OptionHardDisk,      "Disco duro"},
    {Phrase::OptionSort,          "Clasificación electrónica"},
    {Phrase::OptionStapler,       "Grapadora"},
    {Phrase::OptionPuncher,       "Perforadora"},
    {Phrase::OptionTray,          "Bandeja opcional"},
    {Phrase::OptionOther,         "Opción con código {1}"},
    {Phrase::LanguageUnknown,     "desconocido"},
    {Phrase::LanguageOther,       "Lenguaje con código {1}"},

    {Phrase::Cyan,                "cian"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "amarillo"},
    {Phrase::Black,               "negro"},

    {Phrase::UnknownCondition,    "Mensaje desconocido, código {1}"},
    {Phrase::TonerNearlyEmpty,    "El tóner está casi agotado.\nAñada tóner."},
    {Phrase::OutputFull,          "Bandeja de salida llena"},
    {Phrase::OutputFullDetail,    "La bandeja de salida está llena.\nRetire el papel de la zona indicada."},
    {Phrase::OutputNearlyFull,    "La bandeja de salida está casi llena.\nRetire el papel de la bandeja de salida."},
    {Phrase::UnitR3,              "Llame al servicio técnico.\nUnidad que debe cambiarse: R3"},
    {Phrase::RearCoverOpen,       "La cubierta posterior de la bandeja está abierta.\nCierre la cubierta indicada."},
    {Phrase::RearCoverOpenDuplex, "La cubierta posterior de la bandeja está abierta.\nCompruebe la zona indicada.\nLa cubierta posterior de la bandeja 2 está dentro de la unidad dúplex."},

    {Phrase::FirstAnswer,         "responde por primera vez: {1}"},
    {Phrase::Lost,                "sin respuesta válida ({1}): {2}"},
    {Phrase::NeverAnswered,       "nunca ha respondido hasta ahora"},
    {Phrase::LastAnswerAgo,       "última respuesta hace {1}"},
    {Phrase::Back,                "vuelve a responder ({1}): {2}"},
    {Phrase::SilentFor,           "sin respuesta válida durante {1}"},
    {Phrase::Flapping,            "cambia continuamente, no se avisará más hasta que se estabilice: {1}"},
    {Phrase::Steady,              "estable de nuevo: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Monitor de impresora"},
    {Phrase::PrinterField,        "&Impresora:"},
    {Phrase::PollNow,             "Co&nsultar"},
    {Phrase::Every,               "C&ada"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "I&dioma:"},
    {Phrase::OthersList,          "&Otros mensajes:"},
    {Phrase::TraysList,           "&Bandejas:"},
    {Phrase::EquipmentList,       "&Equipamiento:"},
    {Phrase::Close,               "&Cerrar"},
    {Phrase::Connecting,          "Conectando..."},
    {Phrase::Asking,              "Consultando {1}..."},
    {Phrase::AnsweredAt,          "{1} respondió a las {2}."},
    {Phrase::LastAnswerAt,        "Última respuesta a las {1}, hace {2}: las bandejas y el equipamiento son de ese momento."},
    {Phrase::NoAnswerSince,       "Sin respuesta desde las {1}, hace {2}."},
    {Phrase::SimulatedPrinter,    "Impresora simulada"},
    {Phrase::WrongAddress,        "'{1}' no es una dirección de impresora; se admiten HOST, HOST:PORT y [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Estados de la impresora"},
    {Phrase::GalleryLanguage,     "Idioma"},
    {Phrase::CodeNumber,          "código {1}"},
};
// clang-format on

}  // namespace stmon
