#include "system/streams.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>

#include "system/system_text.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// after windows.h
#include <shellapi.h>

#include "system/wide_text.h"
#else
#include <fcntl.h>
#include <unistd.h>

#include <csignal>
#endif

namespace stmon {
namespace {

int print_error = 0;  // of the first text that could not be printed

#ifdef _WIN32
UINT old_code_page = 0;

void RestoreCodePage() {
  SetConsoleOutputCP(old_code_page);
}

#endif

}  // namespace

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
#else
  // Opened the wrong way round: reading and writing fail as they do with a closed one.
  for (const int number : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (fcntl(number, F_GETFD) < 0) open("/dev/null", number == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  }
  std::signal(SIGPIPE, SIG_IGN);
#endif
}

void Print(std::string_view text) {
  errno = 0;
  const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
  if ((!written || std::fflush(stdout) != 0) && print_error == 0)
    print_error = errno != 0 ? errno : EIO;
}

void Complain(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fflush(stderr);
}

std::string OutputTrouble() {
  return print_error == 0 ? std::string() : SystemText(print_error);
}

}  // namespace stmon
