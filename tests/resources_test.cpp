#include "doctest/doctest.h"
#include "support.h"

namespace {

HINSTANCE LibraryModule() {
#ifdef _WIN32
  return GetModuleHandleA("stmdata.dll");
#else
  return nullptr;
#endif
}

}  // namespace

TEST_CASE("a bitmap is found by name and its packed bytes are handed out") {
  HRSRC resource = PatFindResource("BMP_PAPER_R");
  REQUIRE(resource);
  HGLOBAL data = PatLoadResource(resource);
  const auto* header = static_cast<const int32_t*>(LockResource(data));
  REQUIRE(header);
  CHECK(SizeofResource(LibraryModule(), resource) > 40 + 4 * 2);
  CHECK(header[0] == 40);
  CHECK(header[1] == 12);
  CHECK(header[2] == 12);
  CHECK(header[3] == ((8 << 16) | 1));  // bits a pixel, one plane
  CHECK(header[4] == 1);                // run-length encoded

  CHECK(PatFindResource("bmp_paper_r") == resource);
#ifndef _WIN32
  CHECK(DllMain(nullptr, 2, nullptr) == 1);  // a thread comes, nothing changes
  CHECK(PatFindResource("BMP_PAPER_R") == resource);
#endif
}

TEST_CASE("what is no bitmap of the library is not found") {
  const std::string long_name(4000, 'B');
  for (const char* name : {"ICO_ONLINE", "BMP_ERR_CAUTION", "BMP_PAPER", "BMP_PAPER_RR", "", "#5",
                           long_name.c_str(), static_cast<const char*>(nullptr)}) {
    CAPTURE(name);
    CHECK(PatFindResource(name) == nullptr);
  }
  CHECK(PatLoadResource(nullptr) == nullptr);
}
