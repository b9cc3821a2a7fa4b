// Japanese. What the phrases are for is told in en.h.
#pragma once

#include "words/phrases.h"

namespace stmon {

// clang-format off
inline constexpr PhraseRow kJapanesePhrases[] = {
    {Phrase::Printer,             "ﾌﾟﾘﾝﾀ"},
    {Phrase::Model,               "機種"},
    {Phrase::Maker,               "ﾒｰｶｰ"},
    {Phrase::Description,         "名称"},
    {Phrase::Speaks,              "対応言語"},
    {Phrase::Status,              "状態"},
    {Phrase::Online,              "ｵﾝﾗｲﾝ"},
    {Phrase::Conditions,          "通知"},
    {Phrase::Trays,               "ﾄﾚｲ"},
    {Phrase::Bins,                "排紙先"},
    {Phrase::Options,             "ｵﾌﾟｼｮﾝ"},
    {Phrase::PrinterLanguage,     "ﾌﾟﾘﾝﾀ言語"},
    {Phrase::Versions,            "ﾊﾞｰｼﾞｮﾝ"},
    {Phrase::Number,              "番号"},
    {Phrase::Fonts,               "ﾌｫﾝﾄ"},

    {Phrase::Yes,                 "はい"},
    {Phrase::No,                  "いいえ"},
    {Phrase::None,                "なし"},
    {Phrase::VersionIs,           "ﾊﾞｰｼﾞｮﾝ {1}"},
    {Phrase::NumberIs,            "番号 {1}"},
    {Phrase::InUse,               "使用中"},
    {Phrase::Percent,             "{1}%"},
    {Phrase::Level,               "残量 {1}"},
    {Phrase::BinEmpty,            "空"},
    {Phrase::BinNotFull,          "空きあり"},
    {Phrase::BinFull,             "満杯"},
    {Phrase::BinState,            "状態 {1}"},

    {Phrase::SeverityReport,      "情報"},
    {Phrase::SeverityWarning,     "警告"},
    {Phrase::SeverityError,       "ｴﾗｰ"},
    {Phrase::SeverityUnknown,     "不明"},

    {Phrase::TrayBypass,          "手差しﾄﾚｲ"},
    {Phrase::TrayMultiPurpose,    "多目的ﾄﾚｲ"},
    {Phrase::TrayNumber,          "ﾄﾚｲ{1}"},
    {Phrase::TrayFive,            "大量給紙ﾄﾚｲ"},
    {Phrase::TrayOther,           "ﾄﾚｲ (ID {1})"},
    {Phrase::BinNumber,           "排紙先{1}"},
    {Phrase::BinOther,            "不明な排紙先"},

    {Phrase::PaperNone,           "用紙なし"},
    {Phrase::PaperFree,           "ﾌﾘｰｻｲｽﾞ"},
    {Phrase::PaperPostcard,       "ﾊｶﾞｷ"},
    {Phrase::PaperMissing,        "未ｾｯﾄ"},
    {Phrase::PaperRotated,        "{1} (回転)"},
    {Phrase::PaperOther,          "用紙 (ｺｰﾄﾞ {1})"},

    {Phrase::OptionDuplex,        "両面ﾕﾆｯﾄ"},
    {Phrase::OptionHardDisk,      "ﾊｰﾄﾞﾃﾞｨｽｸ"},
    {Phrase::OptionSort,          "電子ｿｰﾄ"},
    {Phrase::OptionStapler,       "ｽﾃｰﾌﾟﾗｰ"},
    {Phrase::OptionPuncher,       "ﾊﾟﾝﾁ"},
    {Phrase::OptionTray,          "ｵﾌﾟｼｮﾝﾄﾚｲ"},
    {Phrase::OptionOther,         "ｵﾌﾟｼｮﾝ (ｺｰﾄﾞ {1})"},
    {Phrase::LanguageUnknown,     "不明"},
    {Phrase::LanguageOther,       "ﾌﾟﾘﾝﾀ言語 (ｺｰﾄﾞ {1})"},

    {Phrase::Cyan,                "ｼｱﾝ"},
    {Phrase::Magenta,             "ﾏｾﾞﾝﾀ"},
    {Phrase::Yellow,              "ｲｴﾛｰ"},
    {Phrase::Black,               "ﾌﾞﾗｯｸ"},

    {Phrase::UnknownCondition,    "不明な通知 (ｺｰﾄﾞ {1})"},
    {Phrase::TonerNearlyEmpty,    "ﾄﾅｰがもうすぐなくなります。\nﾄﾅｰｶｰﾄﾘｯｼﾞを交換してください。"},
    {Phrase::OutputFull,          "排紙先満杯"},
    {Phrase::OutputFullDetail,    "排紙先が満杯になりました。\n下記の個所の用紙を取り除いてください。"},
    {Phrase::OutputNearlyFull,    "排紙先がもうすぐ満杯です。\n排紙ﾄﾚｲの用紙を取り除いてください。"},
    {Phrase::UnitR3,              "ﾕﾆｯﾄ交換時期です。\nお手数ですがｻｰﾋﾞｽにご連絡ください。(R3)"},
    {Phrase::RearCoverOpen,       "ﾄﾚｲの後ろｶﾊﾞｰが開いています。\n下記の個所のｶﾊﾞｰを閉めてください。"},
    {Phrase::RearCoverOpenDuplex, "ﾄﾚｲの後ろｶﾊﾞｰが開いています。\n下記の個所をご確認ください。\nﾄﾚｲ2の後ろｶﾊﾞｰは、両面ﾕﾆｯﾄの内側にあります。"},

    {Phrase::FirstAnswer,         "初めて応答しました: {1}"},
    {Phrase::Lost,                "有効な応答がありません ({1}): {2}"},
    {Phrase::NeverAnswered,       "これまで応答なし"},
    {Phrase::LastAnswerAgo,       "最後の応答は{1}前"},
    {Phrase::Back,                "再び応答しました ({1}): {2}"},
    {Phrase::SilentFor,           "{1}間有効な応答なし"},
    {Phrase::Flapping,            "変化を繰り返しています。安定するまで通知しません: {1}"},
    {Phrase::Steady,              "安定しました: {1}"},

    {Phrase::Seconds,             "{1}秒"},
    {Phrase::Minutes,             "{1}分"},
    {Phrase::Hours,               "{1}時間{2}分"},

    {Phrase::WindowTitle,         "ﾌﾟﾘﾝﾀﾓﾆﾀ"},
    {Phrase::PrinterField,        "ﾌﾟﾘﾝﾀ(&P):"},
    {Phrase::PollNow,             "今すぐ確認(&N)"},
    {Phrase::Every,               "間隔(&I)"},
    {Phrase::EverySeconds,        "秒"},
    {Phrase::LanguageField,       "言語(&L):"},
    {Phrase::OthersList,          "その他の通知(&A):"},
    {Phrase::TraysList,           "ﾄﾚｲ(&T):"},
    {Phrase::EquipmentList,       "構成(&Q):"},
    {Phrase::Close,               "閉じる(&C)"},
    {Phrase::Connecting,          "接続中..."},
    {Phrase::Asking,              "{1}に問い合わせ中..."},
    {Phrase::AnsweredAt,          "{1}: {2}に応答がありました。"},
    {Phrase::LastAnswerAt,        "最後の応答は{1} ({2}前)。ﾄﾚｲと構成はその時点のものです。"},
    {Phrase::NoAnswerSince,       "{1}から応答がありません ({2}経過)。"},
    {Phrase::SimulatedPrinter,    "模擬ﾌﾟﾘﾝﾀ"},
    {Phrase::WrongAddress,        "'{1}'はﾌﾟﾘﾝﾀのｱﾄﾞﾚｽではありません。HOST、HOST:PORT、[IPV6]:PORTの形で入力してください。"},

    {Phrase::GalleryTitle,        "ﾌﾟﾘﾝﾀの状態一覧"},
    {Phrase::GalleryLanguage,     "言語"},
    {Phrase::CodeNumber,          "ｺｰﾄﾞ {1}"},
};
// clang-format on

}  // namespace stmon
