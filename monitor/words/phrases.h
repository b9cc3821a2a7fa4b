// What the monitors say to people in words of their own, in all the languages of the library. What
// they say to programs stays English and is no phrase.
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "words/user_language.h"

namespace stmon {

// One row each in every table of phrases/, in this order; en.h tells what they are for. The first
// ones, up to the fonts, stand before the rows of a report.
// clang-format off
enum class Phrase {
  Printer, Model, Maker, Description, Speaks, Status, Online, Conditions, Trays, Bins, Options,
  PrinterLanguage, Versions, Number, Fonts,
  Yes, No, None, VersionIs, NumberIs, InUse, Percent, Level,
  BinEmpty, BinNotFull, BinFull, BinState,
  SeverityReport, SeverityWarning, SeverityError, SeverityUnknown,
  TrayBypass, TrayMultiPurpose, TrayNumber, TrayFive, TrayOther, BinNumber, BinOther,
  PaperNone, PaperFree, PaperPostcard, PaperMissing, PaperRotated, PaperOther,
  OptionDuplex, OptionHardDisk, OptionSort, OptionStapler, OptionPuncher, OptionTray, OptionOther,
  LanguageUnknown, LanguageOther,
  Cyan, Magenta, Yellow, Black,
  UnknownCondition, TonerNearlyEmpty, OutputFull, OutputFullDetail, OutputNearlyFull, UnitR3,
  RearCoverOpen, RearCoverOpenDuplex,
  FirstAnswer, Lost, NeverAnswered, LastAnswerAgo, Back, SilentFor, Flapping, Steady,
  Seconds, Minutes, Hours,
  WindowTitle, PrinterField, PollNow, Every, EverySeconds, LanguageField, OthersList, TraysList,
  EquipmentList, Close, Connecting, Asking, AnsweredAt, LastAnswerAt, NoAnswerSince,
  SimulatedPrinter, WrongAddress,
  GalleryTitle, GalleryLanguage, CodeNumber,
  Last = CodeNumber
};
// clang-format on

struct PhraseRow {
  Phrase phrase;
  const char* text;  // UTF-8; {1} and {2} stand for what is put in
};

// The phrase with the values at their places.
std::string Say(Phrase phrase, const Language& language,
                std::initializer_list<std::string_view> values = {});

}  // namespace stmon
