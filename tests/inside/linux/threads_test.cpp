#include <algorithm>
#include <array>
#include <atomic>

#include "doctest/doctest.h"
#include "picture/latest_list.h"
#include "run_together.h"
#include "stmdata/stmdata.h"

namespace {

constexpr size_t kThreads = 4;

}  // namespace

TEST_CASE("threads that load the same icons at once share them") {
  const char* const names[] = {"ICO_ONLINE", "ICO_OFFLINE", "ICO_WARMUP", "ICO_ERR_COVER",
                               "ICO_PAP_0",  "ICO_PAP_25",  "ICO_PAP_50", "ICO_PAP_75"};
  std::array<std::array<HICON, std::size(names)>, kThreads> icons{};
  test::RunTogether(kThreads, [&](size_t thread) {
    for (size_t i = 0; i < std::size(names); ++i)
      icons[thread][i] = PatLoadIcon(names[i]);
  });
  for (const auto& loaded : icons)
    CHECK(loaded == icons[0]);
  for (const HICON icon : icons[0])
    CHECK(icon);
}

TEST_CASE("compositions at once never mix their part lists") {
  const uint32_t statuses[kThreads] = {38, 25, 48, 102};
  std::array<stm::PartList, kThreads> lists{};
  std::atomic<uint32_t> mixed{0};
  const auto compose = [&](size_t i) {
    PrnInfo info{};
    info.statusCode = statuses[i];
    PatGetPrnBitmapEx(&info, lists[i].data(), stm::PartList{}.data(), stm::kPartListSize);
  };
  for (size_t i = 0; i < kThreads; ++i) {
    compose(i);
    CHECK(stm::LatestList() == lists[i]);
  }
  const auto wanted = lists;
  test::RunTogether(kThreads, [&](size_t thread) {
    for (int round = 0; round < 20000; ++round) {
      compose(thread);
      const stm::PartList last = stm::LatestList();
      if (std::find(wanted.begin(), wanted.end(), last) == wanted.end()) ++mixed;
    }
  });
  CHECK(mixed.load() == 0);
}
