// Two threads at work at once: records of their own, and the values that the whole process shares.
#include <algorithm>
#include <set>

#include "describe.h"
#include "doctest/doctest.h"
#include "run_together.h"
#include "support.h"
#include "thread_language.h"

namespace {

struct Worker {
  const char* name;
  const char* locale;  // for PatSetLocale; the other thread's may be in force when it asks
  LANGID language;     // of the thread: its own at all times
  std::string_view reply;
};

const Worker kWorkers[] = {
    {"first", "de", 0x040C,
     "\033S\r36,"
     "4\r0\r1\r1\n\033T\r1\r5\n\033Z\r1\r50\n\033V\rA\r1\n\033\x46\rGOTHIC\n\033\x43\r1\n"},
    {"second", "jp", 0x0405,
     "\033S\r69,72\r1\r2\r3\n\033T\r1\r5\r2\r6\n\033L\r1\r0\n\033M\r7\n\033\x44\rF:3\rO:\x03\n"},
};

// What a worker hears, each different thing once: what is its own business, and what depends on
// the latest call of either.
struct Answers {
  std::set<std::string> own, shared;
};

template <class Question, class Info>
std::string Ask(Question question, Info* info) {
  char text[400];
  std::memset(text, 'x', sizeof text - 1);
  text[sizeof text - 1] = '\0';
  const uint32_t result = question(info, text, sizeof text);
  return std::to_string(result) + " '" + text + "' ";
}

void Select(const Worker& worker) {
  std::string locale = worker.locale;
  PatSetLocale(locale.data());
}

void AskEverything(const Worker& worker, Answers& answers) {
  test::Record list;
  PrnInfo flat{};
  test::Parse(list, worker.reply);
  SetPrnInfoFromReadbackCmd(&flat, worker.reply.data(), static_cast<int32_t>(worker.reply.size()));
  StatusRow row{};
  PatGetPrinterStatus_Ex(&list, &row);
  uint8_t codes[16], extra[16];
  PatGetPrnBitmapEx_Ex(&list, codes, extra, sizeof codes);
  char icon[20] = "";
  PatGetErrParts(&flat, icon);
  std::string own = test::Describe(list) + ' ' + icon + ' ' + std::to_string(row.code);
  for (const uint8_t code : codes)
    own += ' ' + std::to_string(code);
  answers.own.insert(own + Ask(PatGetSimpleString, &flat) + Ask(PatGetDetailString, &flat));
  answers.shared.insert(worker.name + Ask(PatGetSimpleString_Ex, &list));
  answers.shared.insert(worker.name + Ask(PatGetDetailString_Ex, &list));
  if (&worker == kWorkers) {
    PatGetPrinterStatus(nullptr, nullptr);
  } else {
    Ask(PatGetRecoveryString, &flat);
  }
  answers.shared.insert("error " + std::to_string(PatGetError()));
}

}  // namespace

TEST_CASE("two threads parse, ask and set the language at once") {
  Answers heard[2], wanted[2], wantedShared;
  test::RunTogether(2, [&](size_t i) {
    test::SetThreadLanguage(kWorkers[i].language);
    for (int round = 0; round < 300; ++round) {
      Select(kWorkers[i]);
      AskEverything(kWorkers[i], heard[i]);
    }
  });
  for (size_t i = 0; i < 2; ++i) {
    test::SetThreadLanguage(kWorkers[i].language);
    for (const Worker& setter : kWorkers) {
      Select(setter);
      AskEverything(kWorkers[i], wanted[i]);
    }
    wantedShared.shared.insert(wanted[i].shared.begin(), wanted[i].shared.end());
  }
  test::SetThreadLanguage(0);
  for (size_t i = 0; i < 2; ++i) {
    CHECK(heard[i].own.size() == 1);
    CHECK(heard[i].own == wanted[i].own);
    for (const std::string& answer : heard[i].shared)
      CHECK_MESSAGE(wantedShared.shared.count(answer) == 1, answer);
  }
}
