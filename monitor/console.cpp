#include "console.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <system_error>

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>
#include <windows.h>
// after windows.h
#include <shellapi.h>
#else
#include <sys/ioctl.h>
#include <unistd.h>
#endif

namespace stmon {
namespace {

std::filesystem::path Path(const std::string& name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

std::string SystemText(int error) {
  switch (error) {
    case ENOENT:
      return "no such file";
    case EACCES:
    case EPERM:
      return "no permission";
    case EISDIR:
      return "a folder, not a file";
    case ENOSPC:
      return "no space left";
    case 0:
      return "read error";
    default:
      return std::strerror(error);
  }
}

#ifdef _WIN32
UINT old_code_page = 0;

void RestoreCodePage() {
  SetConsoleOutputCP(old_code_page);
}

std::string Utf8(const wchar_t* wide) {
  const int size = WideCharToMultiByte(CP_UTF8, 0, wide, -1, nullptr, 0, nullptr, nullptr);
  std::string text(size > 0 ? size - 1 : 0, '\0');
  if (size > 1) WideCharToMultiByte(CP_UTF8, 0, wide, -1, text.data(), size, nullptr, nullptr);
  return text;
}

unsigned long OwnId() {
  return GetCurrentProcessId();
}
#else
unsigned long OwnId() {
  return static_cast<unsigned long>(getpid());
}
#endif

}  // namespace

void PrepareStreams() {
#ifdef _WIN32
  for (FILE* stream : {stdin, stdout, stderr})
    _setmode(_fileno(stream), _O_BINARY);
  old_code_page = GetConsoleOutputCP();
  if (old_code_page != 0 && SetConsoleOutputCP(CP_UTF8)) std::atexit(RestoreCodePage);
#endif
}

std::vector<std::string> Arguments(int count, char** values) {
#ifdef _WIN32
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

std::string ReadWholeFile(const std::string& name, size_t most, std::string& bytes) {
  errno = 0;
  bytes.resize(most + 1);
  if (name == "-") {
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), stdin));
    return std::ferror(stdin) ? SystemText(errno) : "";
  }
  std::error_code ignored;
  if (std::filesystem::is_directory(Path(name), ignored)) return SystemText(EISDIR);
  errno = 0;
  std::ifstream file(Path(name), std::ios::binary);
  if (!file) return SystemText(errno);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<size_t>(file.gcount()));
  return file.bad() ? SystemText(errno) : "";
}

std::string WriteWholeFile(const std::string& name, std::string_view bytes) {
  std::error_code error;
  auto target = Path(name);
  // A link keeps pointing; a device or a pipe is written to, not replaced.
  if (const auto real = std::filesystem::canonical(target, error); !error) target = real;
  const auto kind = std::filesystem::status(target, error).type();
  const bool replace =
      kind == std::filesystem::file_type::regular || kind == std::filesystem::file_type::not_found;
  auto beside = target;
  if (replace) beside += "." + std::to_string(OwnId()) + ".tmp";
  errno = 0;
  std::ofstream file(beside, std::ios::binary | std::ios::trunc);
  if (!file) return SystemText(errno);
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  file.close();
  std::string why = file ? "" : SystemText(errno);
  if (!replace) return why;
  if (why.empty()) {
    std::filesystem::rename(beside, target, error);
    if (error) why = error.message();
  }
  if (!why.empty()) std::filesystem::remove(beside, error);
  return why;
}

std::string MakeFolder(const std::string& name) {
  std::error_code error;
  std::filesystem::create_directories(Path(name), error);
  if (error) return error.message();
  return std::filesystem::is_directory(Path(name), error) ? "" : "not a folder";
}

#ifdef _WIN32
Terminal OutputTerminal() {
  const HANDLE output = GetStdHandle(STD_OUTPUT_HANDLE);
  DWORD mode = 0;
  CONSOLE_SCREEN_BUFFER_INFO info{};
  constexpr DWORD kEscapes = 0x0004;  // ENABLE_VIRTUAL_TERMINAL_PROCESSING
  if (!GetConsoleMode(output, &mode) || !GetConsoleScreenBufferInfo(output, &info)) return {};
  if (!SetConsoleMode(output, mode | kEscapes)) return {};
  return {info.srWindow.Right - info.srWindow.Left + 1, true};
}
#else
Terminal OutputTerminal() {
  const char* kind = std::getenv("TERM");
  const char* colours = std::getenv("COLORTERM");
  const char* none = std::getenv("NO_COLOR");
  if (!isatty(STDOUT_FILENO) || !kind || std::string_view(kind) == "dumb" || (none && *none))
    return {};
  winsize size{};
  const bool sized = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  const std::string_view depth = colours ? colours : "";
  return {sized ? size.ws_col : 80, depth == "truecolor" || depth == "24bit"};
}
#endif

void Print(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stdout);
  std::fflush(stdout);
}

void Complain(std::string_view text) {
  std::fwrite(text.data(), 1, text.size(), stderr);
  std::fflush(stderr);
}

}  // namespace stmon
