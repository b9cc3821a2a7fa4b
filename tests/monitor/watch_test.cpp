#include "report/watch.h"

#include <chrono>

#include "doctest/doctest.h"

using namespace std::chrono_literals;

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

stmon::Json ToJson(const stmon::Event& event, const stmon::Snapshot& latest) {
  return stmon::Json::parse(stmon::EventJson(event, latest));
}

// "status changed, conditions came 32": what happened, without the words for people.
std::string Summary(const std::vector<stmon::Event>& events) {
  static const stmon::Snapshot any = Told("0");
  std::string text;
  for (const stmon::Event& event : events) {
    const auto json = ToJson(event, any);
    text += (text.empty() ? "" : ", ") + event.group + " " + json["event"].get<std::string>();
    if (event.id) text += " " + std::to_string(*event.id);
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
      {"another kind of silence", Failed(stmon::Outcome::Silent), ""},
      {"the first answer", Told("0"), "printer first"},
      {"the same", Told("0"), ""},
      {"paper runs out", Told("32", "1\r-1", "1\r0"),
       "status changed, conditions came 32, trays changed 3"},
      {"a warning beside the dominant error", Told("32,65", "1\r-1", "1\r0"), "conditions came 65"},
      {"the printer vanishes", Failed(stmon::Outcome::ConnectTimeout), "printer lost"},
      {"and returns as it was", Told("32,65", "1\r-1", "1\r0"), "printer back"},
      {"a tray is taken out", Told("65", "1\r6\r2\r2", "1\r100\r2\r50"),
       "status changed, conditions went 32, trays changed 3, trays came 4"},
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
  const auto json = ToJson(lost[0], garbage);
  CHECK(json["last_answer"] == "1970-01-01T00:00:00Z");
  CHECK(json["outcome"] == "not-a-reply");

  const auto later = Told("65");
  const auto found = stmon::Observe(watch, later, now + 100s);
  CHECK(Summary(found) == "printer back, conditions came 65");
  CHECK(line(found[0], later) ==
        "Printer     answers again (no usable answer for 100 s): Online/Ready\n");
  CHECK(ToJson(found[0], later)["last_answer"] == "1970-01-01T00:00:00Z");
}

TEST_CASE("an event carries the values that changed") {
  stmon::Watch watch;
  stmon::Observe(watch, Told("0"), {});
  const auto empty = Told("32", "1\r-1", "1\r0");
  const auto events = stmon::Observe(watch, empty, {});
  REQUIRE(Summary(events) == "status changed, conditions came 32, trays changed 3");
  CHECK(ToJson(events[0], empty)["to"] == "No Paper");
  CHECK(ToJson(events[1], empty)["from"].is_null());
  CHECK(ToJson(events[1], empty)["to"]["reason"] == "media-empty-error");
  CHECK(ToJson(events[1], empty)["to"]["tray"] == 3);
  const auto tray = ToJson(events[2], empty);
  CHECK(tray["from"]["level"] == 50);
  CHECK(tray["to"]["level"] == 0);
  CHECK(tray["to"]["paper_code"] == PaperNone);
  CHECK(tray["exit_status"] == 2);
}

TEST_CASE("a printer is silent after so many polls, and what flaps is told as flapping") {
  struct Row {
    const char* why;
    uint32_t misses;
    const char* polls;  // a digit each: 0 ready, 1 no paper; . no answer
    const char* events;
  };
  // The headline changes with the condition, so both flap.
  const Row rows[] = {
      {"one miss is none", 2, "0.0.0", "1 printer first"},
      {"two are silence, told once", 2, "0......0",
       "1 printer first, 3 printer lost, 8 printer back"},
      {"at the start as well", 3, "....0", "3 printer lost, 5 printer first"},
      {"a short silence hides no change", 2, "0.1",
       "1 printer first, 3 status changed, 3 conditions came 32"},
      {"the fifth change within twenty polls is flapping, and twenty without one are steady", 2,
       "010101010000000000000000000000",
       "1 printer first, 2 status changed, 2 conditions came 32, 3 status changed, "
       "3 conditions went 32, 4 status changed, 4 conditions came 32, 5 status changed, "
       "5 conditions went 32, 6 status flapping, 6 conditions flapping 32, "
       "29 conditions steady 32, 29 status steady"},
      {"slow changes are told each", 1, "000001111100000111110000011111",
       "1 printer first, 6 status changed, 6 conditions came 32, 11 status changed, "
       "11 conditions went 32, 16 status changed, 16 conditions came 32, 21 status changed, "
       "21 conditions went 32, 26 status changed, 26 conditions came 32"},
      {"a printer that comes and goes", 1, "0.0.0.0.0",
       "1 printer first, 2 printer lost, 3 printer back, 4 printer lost, 5 printer flapping"},
  };
  const stmon::Snapshot states[] = {Told("0", "1\r6"), Told("32", "1\r6")};
  for (const Row& row : rows) {
    CAPTURE(row.why);
    stmon::Watch watch;
    watch.misses = row.misses;
    std::string told;
    for (size_t i = 0; row.polls[i]; ++i) {
      const bool silent = row.polls[i] == '.';
      const auto& poll = silent ? Failed(stmon::Outcome::Silent) : states[row.polls[i] - '0'];
      for (const stmon::Event& event : stmon::Observe(watch, poll, {}))
        told += (told.empty() ? "" : ", ") + std::to_string(i + 1) + " " + Summary({event});
    }
    CHECK(told == row.events);
    CHECK(watch.flapping.changes.size() <= 3);
  }
}

TEST_CASE("polls become rarer while nothing answers") {
  stmon::Watch watch;
  watch.misses = 2;
  for (const auto wait : {5s, 10s, 20s}) {
    stmon::Observe(watch, Failed(stmon::Outcome::Silent), {});
    CHECK(stmon::NextWait(watch, 5s) == wait);
  }
  CHECK(stmon::NextWait(0, 5s) == 5s);
  CHECK(stmon::NextWait(2, 5s) == 20s);
  CHECK(stmon::NextWait(4000000000u, 5s) == 60s);
  CHECK(stmon::NextWait(4000000000u, 300s) == 300s);
}
