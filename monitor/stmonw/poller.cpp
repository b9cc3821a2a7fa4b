#include "stmonw/poller.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>

#include "report/watch.h"

namespace stmonw {
namespace {

constexpr std::chrono::milliseconds kTimeout(5000);  // for one query
constexpr std::chrono::seconds kShortestInterval(1);

}  // namespace

struct Poller {
  stmon::Target target;
  std::string query;
  HWND window = nullptr;
  UINT message = 0;

  std::mutex mutex;  // guards what follows
  std::condition_variable changed;
  std::chrono::seconds interval{};
  std::optional<stmon::Exchange> answer;
  bool asked = false;  // a poll out of turn
  bool stopped = false;
  bool ended = false;
};

namespace {

void Run(const std::shared_ptr<Poller>& poller) {
  uint32_t failures = 0;  // in a row
  std::unique_lock lock(poller->mutex);
  while (!poller->stopped) {
    poller->asked = false;
    // The window must be able to stop or speed up the polls while one is under way.
    lock.unlock();
    stmon::Exchange exchange = stmon::AskPrinter(poller->target, poller->query, kTimeout);
    const auto end = std::chrono::steady_clock::now();
    lock.lock();
    if (poller->stopped) break;  // nobody wants this answer any more
    failures = exchange.outcome == stmon::Outcome::Answered ? 0 : failures + 1;
    poller->answer = std::move(exchange);
    PostMessageW(poller->window, poller->message, 0, 0);
    // The interval may change while we wait.
    while (!poller->stopped && !poller->asked) {
      const auto next = end + stmon::NextWait(failures, poller->interval);
      if (poller->changed.wait_until(lock, next) == std::cv_status::timeout) break;
    }
  }
  poller->ended = true;
  poller->changed.notify_all();
}

}  // namespace

std::shared_ptr<Poller> StartPolling(const stmon::Target& target, const std::string& query,
                                     std::chrono::seconds interval, HWND window, UINT message) {
  auto poller = std::make_shared<Poller>();
  poller->target = target;
  poller->query = query;
  poller->window = window;
  poller->message = message;
  poller->interval = std::max(interval, kShortestInterval);
  std::thread([poller] { Run(poller); }).detach();
  return poller;
}

std::optional<stmon::Exchange> TakeAnswer(Poller& poller) {
  const std::lock_guard lock(poller.mutex);
  return std::exchange(poller.answer, std::nullopt);
}

void SetInterval(Poller& poller, std::chrono::seconds interval) {
  const std::lock_guard lock(poller.mutex);
  poller.interval = std::max(interval, kShortestInterval);
  poller.changed.notify_all();
}

void PollNow(Poller& poller) {
  const std::lock_guard lock(poller.mutex);
  poller.asked = true;
  poller.changed.notify_all();
}

void StopPolling(Poller& poller) {
  const std::lock_guard lock(poller.mutex);
  poller.stopped = true;
  poller.answer.reset();
  poller.changed.notify_all();
}

bool WaitForEnd(Poller& poller, std::chrono::milliseconds timeout) {
  std::unique_lock lock(poller.mutex);
  return poller.changed.wait_for(lock, timeout, [&] { return poller.ended; });
}

}  // namespace stmonw
