// Portuguese (Brazil). What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kPortuguesePhrases[] = {
    {Phrase::Printer,             "Impressora"},
    {Phrase::Model,               "Modelo"},
    {Phrase::Maker,               "Fabricante"},
    {Phrase::Description,         "Descrição"},
    {Phrase::Speaks,              "Linguagens"},
    {Phrase::Status,              "Status"},
    {Phrase::Online,              "Online"},
    {Phrase::Conditions,          "Mensagens"},
    {Phrase::Trays,               "Bandejas"},
    {Phrase::Bins,                "Bandejas de saída"},
    {Phrase::Options,             "Opcionais"},
    {Phrase::PrinterLanguage,     "Linguagem"},
    {Phrase::Versions,            "Versões"},
    {Phrase::Number,              "Número"},
    {Phrase::Fonts,               "Fontes"},

    {Phrase::Yes,                 "sim"},
    {Phrase::No,                  "não"},
    {Phrase::None,                "nenhum"},
    {Phrase::VersionIs,           "versão {1}"},
    {Phrase::NumberIs,            "número {1}"},
    {Phrase::InUse,               "em uso"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "nível {1}"},
    {Phrase::BinEmpty,            "vazia"},
    {Phrase::BinNotFull,          "não cheia"},
    {Phrase::BinFull,             "cheia"},
    {Phrase::BinState,            "estado {1}"},

    {Phrase::SeverityReport,      "nota"},
    {Phrase::SeverityWarning,     "aviso"},
    {Phrase::SeverityError,       "erro"},
    {Phrase::SeverityUnknown,     "desconhecido"},

    {Phrase::TrayBypass,          "Bandeja manual"},
    {Phrase::TrayMultiPurpose,    "Bandeja multiuso"},
    {Phrase::TrayNumber,          "Bandeja {1}"},
    {Phrase::TrayFive,            "Bandeja 5"},
    {Phrase::TrayOther,           "Bandeja com ID {1}"},
    {Phrase::BinNumber,           "Bandeja de saída {1}"},
    {Phrase::BinOther,            "Bandeja de saída desconhecida"},

    {Phrase::PaperNone,           "sem papel"},
    {Phrase::PaperFree,           "tamanho livre"},
    {Phrase::PaperPostcard,       "cartão-postal"},
    {Phrase::PaperMissing,        "não posicionada"},
    {Phrase::PaperRotated,        "{1} girado"},
    {Phrase::PaperOther,          "papel com código {1}"},

    {Phrase::OptionDuplex,        "Unidade duplex"},
    {Phrase::OptionHardDisk,      "Disco rígido"},
    {Phrase::OptionSort,          "Classificação eletrônica"},
    {Phrase::OptionStapler,       "Grampeador"},
    {Phrase::OptionPuncher,       "Perfurador"},
    {Phrase::OptionTray,          "Bandeja opcional"},
    {Phrase::OptionOther,         "Opcional com código {1}"},
    {Phrase::LanguageUnknown,     "desconhecida"},
    {Phrase::LanguageOther,       "Linguagem com código {1}"},

    {Phrase::Cyan,                "ciano"},
    {Phrase::Magenta,             "magenta"},
    {Phrase::Yellow,              "amarelo"},
    {Phrase::Black,               "preto"},

    {Phrase::UnknownCondition,    "Mensagem desconhecida, código {1}"},
    {Phrase::TonerNearlyEmpty,    "O toner está quase no fim.\nAdicione toner."},
    {Phrase::OutputFull,          "Bandeja de saída cheia"},
    {Phrase::OutputFullDetail,    "A bandeja de saída está cheia.\nRemova o papel da área indicada."},
    {Phrase::OutputNearlyFull,    "A bandeja de saída está quase cheia.\nRemova o papel da bandeja de saída."},
    {Phrase::UnitR3,              "Chame a assistência técnica.\nUnidade a ser substituída: R3"},
    {Phrase::RearCoverOpen,       "A tampa traseira da bandeja está aberta.\nFeche a tampa indicada."},
    {Phrase::RearCoverOpenDuplex, "A tampa traseira da bandeja está aberta.\nVerifique a área indicada.\nA tampa traseira da bandeja 2 fica dentro da unidade duplex."},

    {Phrase::FirstAnswer,         "responde pela primeira vez: {1}"},
    {Phrase::Lost,                "sem resposta utilizável ({1}): {2}"},
    {Phrase::NeverAnswered,       "nunca respondeu até agora"},
    {Phrase::LastAnswerAgo,       "última resposta há {1}"},
    {Phrase::Back,                "voltou a responder ({1}): {2}"},
    {Phrase::SilentFor,           "sem resposta utilizável por {1}"},
    {Phrase::Flapping,            "muda sem parar, novo aviso só quando estabilizar: {1}"},
    {Phrase::Steady,              "estável novamente: {1}"},

    {Phrase::Seconds,             "{1} s"},
    {Phrase::Minutes,             "{1} min"},
    {Phrase::Hours,               "{1} h {2} min"},

    {Phrase::WindowTitle,         "Monitor da impressora"},
    {Phrase::PrinterField,        "&Impressora:"},
    {Phrase::PollNow,             "Co&nsultar"},
    {Phrase::Every,               "A c&ada"},
    {Phrase::EverySeconds,        "s"},
    {Phrase::LanguageField,       "I&dioma:"},
    {Phrase::OthersList,          "&Outras mensagens:"},
    {Phrase::TraysList,           "&Bandejas:"},
    {Phrase::EquipmentList,       "&Equipamento:"},
    {Phrase::Close,               "&Fechar"},
    {Phrase::Connecting,          "Conectando..."},
    {Phrase::Asking,              "Consultando {1}..."},
    {Phrase::AnsweredAt,          "{1} respondeu às {2}."},
    {Phrase::LastAnswerAt,        "Última resposta às {1}, há {2}: as bandejas e o equipamento são desse momento."},
    {Phrase::NoAnswerSince,       "Sem resposta desde as {1}, há {2}."},
    {Phrase::SimulatedPrinter,    "Impressora simulada"},
    {Phrase::WrongAddress,        "'{1}' não é um endereço de impressora; são aceitos HOST, HOST:PORT e [IPV6]:PORT."},

    {Phrase::GalleryTitle,        "Estados da impressora"},
    {Phrase::GalleryLanguage,     "Idioma"},
    {Phrase::CodeNumber,          "código {1}"},
};
// clang-format on

}  // namespace stmon
