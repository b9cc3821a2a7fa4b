// Answers that were checked once and are kept as text, tests/kept/NAME.txt, one line a code: a
// change shows as lines that differ. `./test keep` writes them anew.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>

#include "doctest/doctest.h"

namespace test {

// One line a code, neighbours with the same answer in one: "778-65535: 0".
class Lines {
 public:
  void Add(uint32_t code, const std::string& answer) {
    if (open_ && answer == answer_ && code == last_ + 1) {
      last_ = code;
      return;
    }
    Close();
    first_ = last_ = code;
    answer_ = answer;
    open_ = true;
  }
  void Add(const std::string& line) {
    Close();
    text_ += line + '\n';
  }
  std::string Text() {
    Close();
    return text_;
  }

 private:
  void Close() {
    if (!open_) return;
    text_ += std::to_string(first_);
    if (last_ != first_) text_ += '-' + std::to_string(last_);
    text_ += ": " + answer_ + '\n';
    open_ = false;
  }

  std::string text_, answer_;
  uint32_t first_ = 0, last_ = 0;
  bool open_ = false;
};

// Bytes in quotes, those beyond printable ASCII as hexadecimal numbers.
inline std::string Quoted(const std::string& bytes) {
  std::string out = "'";
  for (const char byte : bytes) {
    const char* digits = "0123456789ABCDEF";
    const auto value = static_cast<uint8_t>(byte);
    if (value >= ' ' && value < 0x7F)
      out += byte;
    else
      (out += '<') += {digits[value >> 4], digits[value & 15], '>'};
  }
  return out + '\'';
}

// The numbers with a blank before each.
template <class... Numbers>
std::string Listed(Numbers... numbers) {
  return ((' ' + std::to_string(numbers)) + ... + std::string());
}

inline void CheckKept(const std::string& name, const std::string& now) {
  const std::string path = STMDATA_KEPT "/" + name + ".txt";
  if (std::getenv("STMDATA_KEEP")) {
    std::ofstream(path, std::ios::binary) << now;
    return;
  }
  std::ifstream file(path, std::ios::binary);
  REQUIRE_MESSAGE(file, path);
  const std::string kept{std::istreambuf_iterator<char>(file), {}};
  if (kept == now) return;
  std::istringstream kept_lines(kept), now_lines(now);
  int shown = 0;
  for (int number = 1; shown < 5; ++number) {
    std::string was, is;
    const bool more = static_cast<bool>(std::getline(kept_lines, was));
    if (!std::getline(now_lines, is) && !more) break;
    if (was == is) continue;
    ++shown;
    FAIL_CHECK(name << ".txt:" << number << "\n  kept: " << was << "\n  now:  " << is);
  }
  CHECK(shown > 0);  // else a line end is missing
}

}  // namespace test
