// Threads that start together and run until the last one ends.
#pragma once

#include <atomic>
#include <cstddef>
#include <thread>
#include <vector>

namespace test {

// Calls `body` with 0 to `count` - 1, each in a thread of its own.
template <class Body>
void RunTogether(size_t count, Body body) {
  std::atomic<size_t> waiting{count};
  std::vector<std::thread> threads;
  for (size_t i = 0; i < count; ++i) {
    threads.emplace_back([&, i] {
      for (--waiting; waiting != 0;)
        std::this_thread::yield();
      body(i);
    });
  }
  for (std::thread& thread : threads)
    thread.join();
}

}  // namespace test
