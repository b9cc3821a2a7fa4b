// Polls a printer off the window's thread: one query at a time, with longer pauses while nothing
// answers.
#pragma once

#include <windows.h>

#include <chrono>
#include <memory>
#include <optional>

#include "wire/transport.h"

namespace stmonw {

struct Poller;  // shared with its thread, which lives as long as a query is in flight

// Posts `message` to `window` for every answer that TakeAnswer then gives.
std::shared_ptr<Poller> StartPolling(const stmon::Target& target, const std::string& query,
                                     std::chrono::seconds interval, HWND window, UINT message);

// The answer that came last and has not been taken.
std::optional<stmon::Exchange> TakeAnswer(Poller& poller);

void SetInterval(Poller& poller, std::chrono::seconds interval);
void PollNow(Poller& poller);

// Returns at once. A query in flight ends by itself within its time-out; its answer is dropped.
void StopPolling(Poller& poller);

// After StopPolling: waits for the thread. Result: false when it is still in a query.
bool WaitForEnd(Poller& poller, std::chrono::milliseconds timeout);

}  // namespace stmonw
