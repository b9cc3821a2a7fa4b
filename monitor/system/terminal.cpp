#include "system/terminal.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdlib>
#include <string_view>
#endif

namespace stmon {

#ifdef _WIN32
Terminal OutputTerminal() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  CONSOLE_SCREEN_BUFFER_INFO info{};
  constexpr DWORD kEscapes = 0x0004;  // ENABLE_VIRTUAL_TERMINAL_PROCESSING
  if (!GetConsoleMode(output, &mode) || !GetConsoleScreenBufferInfo(output, &info)) return {};
  // Consoles before Windows 10 refuse this, and would show the escape sequences as they are.
  const bool colours = SetConsoleMode(output, mode | kEscapes) != 0;
  return {info.srWindow.Right - info.srWindow.Left + 1, colours, colours};
}
#else
Terminal OutputTerminal() {
  const char* kind = std::getenv("TERM");
  const char* colours = std::getenv("COLORTERM");
  const char* none = std::getenv("NO_COLOR");  // set and not empty: the user wants none
  if (!isatty(STDOUT_FILENO)) return {};
  const bool coloured = kind && std::string_view(kind) != "dumb" && !(none && *none);
  winsize size{};
  const bool sized = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  const std::string_view depth = colours ? colours : "";
  constexpr int kUsualColumns = 80;
  return {sized ? size.ws_col : kUsualColumns, coloured, depth == "truecolor" || depth == "24bit"};
}
#endif

}  // namespace stmon
