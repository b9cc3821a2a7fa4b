#include "report/flapping.h"

#include <iterator>
#include <utility>

namespace stmon {
namespace {

// What goes and what comes are told apart by their value where they have no number.
std::string KeyOf(const Event& event) {
  std::string key = event.group;
  if (event.id) return key + " " + std::to_string(*event.id);
  if (event.kind == EventKind::Came) key += " " + event.toText;
  if (event.kind == EventKind::Went) key += " " + event.fromText;
  return key;
}

}  // namespace

std::vector<Event> Settle(Flapping& flapping, std::vector<Event> events) {
  std::vector<Event> told;
  ++flapping.poll;
  for (Event& event : events) {
    Changes& changes = flapping.changes[KeyOf(event)];
    changes.polls.push_back(flapping.poll);
    if (changes.polls.size() > kFlappingChanges) changes.polls.pop_front();
    changes.last = event;
    if (changes.flapping) continue;
    changes.flapping = changes.polls.size() == kFlappingChanges &&
                       flapping.poll - changes.polls.front() < kFlappingPolls;
    if (changes.flapping) event.rhythm = Rhythm::Flapping;
    told.push_back(std::move(event));
  }
  for (auto entry = flapping.changes.begin(); entry != flapping.changes.end();) {
    Changes& changes = entry->second;
    const bool steady = flapping.poll - changes.polls.back() >= kFlappingPolls;
    if (steady && changes.flapping) {
      changes.last.rhythm = Rhythm::Steady;
      told.push_back(std::move(changes.last));
    }
    entry = steady ? flapping.changes.erase(entry) : std::next(entry);
  }
  return told;
}

}  // namespace stmon
