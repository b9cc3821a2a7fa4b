// What only pointers of 64 bits can show.
#include <cstdint>

#include "describe.h"
#include "doctest/doctest.h"
#include "print_manager.h"

#if UINTPTR_MAX > UINT32_MAX

namespace {

constexpr uint64_t kUpper = uint64_t{1} << 32;
constexpr size_t kPage = 65536;

// Memory on both sides of an address whose lower half is zero.
class Around {
 public:
  Around() {
#ifdef _WIN32
    base_ = static_cast<char*>(VirtualAlloc(nullptr, kSize, MEM_RESERVE, PAGE_NOACCESS));
    VirtualAlloc(middle() - kPage, 2 * kPage, MEM_COMMIT, PAGE_READWRITE);
#else
    base_ = static_cast<char*>(
        mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0));
    mprotect(middle() - kPage, 2 * kPage, PROT_READ | PROT_WRITE);
#endif
  }
  ~Around() {
#ifdef _WIN32
    VirtualFree(base_, 0, MEM_RELEASE);
#else
    munmap(base_, kSize);
#endif
  }
  Around(const Around&) = delete;
  Around& operator=(const Around&) = delete;

  char* middle() const {
    const auto address = reinterpret_cast<uintptr_t>(base_) + kPage;
    return reinterpret_cast<char*>((address + kUpper - 1) / kUpper * kUpper);
  }
  // The text at an address with this lower half.
  const char* Text(int32_t lowerHalf, const char* text) const {
    return std::strcpy(middle() + lowerHalf, text);
  }

 private:
  static constexpr size_t kSize = kUpper + 2 * kPage;
  char* base_;
};

}  // namespace

TEST_CASE("a pointer whose lower half is all ones, zero or small is one like any other") {
  const Around around;
  for (const int32_t lowerHalf : {-1, 0, 1, 2, 0x8000}) {
    CAPTURE(lowerHalf);
    test::Record record;
    test::PrintManager manager;
    manager.SetModel(around.Text(lowerHalf, "ZENTA C210"), nullptr, STM_ABSENT);
    CHECK(PatSetPMPrnInfoToPrnInfo(&record, &manager.record, GroupModelInfo) == 1);
    CHECK(test::Describe(record) == "tag=404 sized model='ZENTA C210' maker='ORLEX' code=103");

    test::Record other;
    uint32_t equal = 1;
    GlobalFree(record.modelName);
    record.modelName = const_cast<char*>(around.Text(lowerHalf, "ZENTA C211"));
    manager.SetModel("ZENTA C210", nullptr, STM_ABSENT);
    PatSetPMPrnInfoToPrnInfo(&other, &manager.record, GroupModelInfo);
    CHECK(PatCmpPrnInfoEX(&record, &other, GroupModelInfo, &equal) == 1);
    CHECK(equal == 0);
    record.modelName = nullptr;

    // A small name would be a number, and the library has bitmaps without one only.
    CHECK(PatFindResource(around.Text(lowerHalf, "BMP_P_BASE")));
  }
}

#endif
