#include "report/watch.h"

#include <chrono>

#include "doctest/doctest.h"

using namespace std::chrono_literals;
using stmon::EventKind;

namespace {

stmon::Snapshot Told(const std::string& status, const std::string& trays = "1\r6",
                     const std::string& levels = "1\r50", bool online = true) {
  const std::string reply = "\033S\r" + status + (online ? "\r0" : "\r1") + "\r1\r1\n\033T\r" +
                            trays + "\n\033Z\r" + levels + "\n\033 ";
  return stmon::ReadExchange({"test", "", "", stmon::RecordKind::List}, stmon::JudgeReply(reply));
}

stmon::Snapshot Failed(stmon::Outcome outcome) {
  stmon::Exchange exchange;
  exchange.outcome = outcome;
  return stmon::ReadExchange({"test", "", "", stmon::RecordKind::List}, exchange);
}

// "status changed, conditions came 32": what happened, without the words for people.
std::string Summary(const std::vector<stmon::Event>& events) {
  constexpr const char* kWords[] = {"first", "changed", "came", "went", "lost", "back"};
  std::string text;
  for (const stmon::Event& event : events) {
    text += (text.empty() ? "" : ", ") + event.group + " " + kWords[static_cast<int>(event.kind)];
    if (event.code) text += " " + std::to_string(*event.code);
  }
  return text;
}

}  // namespace

TEST_CASE("each poll tells what changed since the last good answer, and nothing else") {
  struct Step {
    const char* why;
    stmon::Snapshot snapshot;
    const char* events;
  };
  const Step steps[] = {
      {"off at the start", Failed(stmon::Outcome::Refused), "printer lost"},
      {"still off", Failed(stmon::Outcome::Refused), ""},
      {"another kind of silence", Failed(stmon::Outcome::Silent), "printer lost"},
      {"the first answer", Told("0"), "printer first"},
      {"the same", Told("0"), ""},
      {"paper runs out", Told("32", "1\r-1", "1\r0"),
       "status changed, trays changed, conditions came 32"},
      {"a warning beside the dominant error", Told("32,65", "1\r-1", "1\r0"), "conditions came 65"},
      {"the printer vanishes", Failed(stmon::Outcome::ConnectTimeout), "printer lost"},
      {"and returns as it was", Told("32,65", "1\r-1", "1\r0"), "printer back"},
      {"a tray is taken out", Told("65", "1\r6\r2\r2", "1\r100\r2\r50"),
       "status changed, trays changed, trays came, conditions went 32"},
      {"another order of the same codes", Told("65,65", "2\r2\r1\r6", "1\r100\r2\r50"), ""},
      {"switched offline", Told("65", "1\r6\r2\r2", "1\r100\r2\r50", false),
       "status changed, conditions came"},
  };
  stmon::Watch watch;
  auto now = std::chrono::steady_clock::now();
  for (const Step& step : steps) {
    CAPTURE(step.why);
    CHECK(Summary(stmon::Observe(watch, step.snapshot, now)) == step.events);
    now += 5s;
  }
}

TEST_CASE("a printer that is lost and found is told with its last answer, however it failed") {
  stmon::Watch watch;
  const auto now = std::chrono::steady_clock::now();
  auto good = Told("0");
  good.when = {};
  const auto line = [](const stmon::Event& event, const stmon::Snapshot& snapshot) {
    const std::string text = stmon::EventText(event, snapshot);
    return text.substr(text.find("  ") + 2);
  };
  CHECK(line(stmon::Observe(watch, Failed(stmon::Outcome::Refused), now)[0], good)
            .starts_with("Printer     no usable answer (never answered so far): "));
  CHECK(line(stmon::Observe(watch, good, now)[0], good) ==
        "Printer     answers for the first time: Online/Ready\n");

  const auto garbage = Failed(stmon::Outcome::NotAReply);
  const auto lost = stmon::Observe(watch, garbage, now + 90s);
  CHECK(
      line(lost[0], garbage).starts_with("Printer     no usable answer (last answer 90 s ago): "));
  const std::string json = stmon::EventJson(lost[0], garbage);
  CHECK(json.find("\"last_answer\":\"1970-01-01T00:00:00Z\",\"outcome\":\"not-a-reply\"") !=
        std::string::npos);

  const auto later = Told("65");
  const auto found = stmon::Observe(watch, later, now + 100s);
  CHECK(Summary(found) == "printer back, conditions came 65");
  CHECK(line(found[0], later) ==
        "Printer     answers again (no usable answer for 100 s): Online/Ready\n");
  CHECK(stmon::EventJson(found[0], later).find("\"last_answer\":\"1970-01-01T00:00:00Z\"") !=
        std::string::npos);
}

TEST_CASE("polls become rarer while nothing answers") {
  CHECK(stmon::NextWait(0, 5s) == 5s);
  CHECK(stmon::NextWait(2, 5s) == 20s);
  CHECK(stmon::NextWait(4000000000u, 5s) == 60s);
  CHECK(stmon::NextWait(4000000000u, 300s) == 300s);
}
