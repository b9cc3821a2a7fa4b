#include "system/streams.h"

#include <cstdio>
#include <cstdlib>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// after windows.h
#include <shellapi.h>

#include "system/wide_text.h"
#endif

namespace stmon {

#ifdef _WIN32
namespace {

UINT old_code_page = 0;

void RestoreCodePage() {
  SetConsoleOutputCP(old_code_page);
}

}  // namespace
#endif

std::vector<std::string> Arguments(int count, char** values) {
#ifdef _WIN32
  // What main() gets is in the ANSI code page, which lacks most letters.
  int wide_count = 0;
  if (LPWSTR* wide = CommandLineToArgvW(GetCommandLineW(), &wide_count)) {
    std::vector<std::string> arguments;
    for (int i = 0; i < wide_count; ++i)
      arguments.push_back(Utf8(wide[i]));
    LocalFree(wide);
    return arguments;
  }
#endif
  return {values, values + count};
}

void PrepareStreams() {
#ifdef _WIN32
  // As text they would gain a carriage return before each line feed, also inside a PNG.
  for (FILE* stream : {stdin, stdout, stderr})
    _setmode(_fileno(stream), _O_BINARY);
  old_code_page = GetConsoleOutputCP();
  if (old_code_page != 0 && SetConsoleOutputCP(CP_UTF8)) std::atexit(RestoreCodePage);
#endif
}

void Print(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void Complain(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fflush(stderr);
}

}  // namespace stmon
