#include "system/files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "system/system_text.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <unistd.h>
#endif

namespace stmon {
namespace {

// Windows would take a name of plain bytes in its ANSI code page, which lacks most letters.
std::filesystem::path Path(const std::string& name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

#ifdef _WIN32
unsigned long OwnId() {
  return GetCurrentProcessId();
}
#else
unsigned long OwnId() {
  return static_cast<unsigned long>(getpid());
}
#endif

}  // namespace

std::string ReadWholeFile(const std::string& name, size_t most, std::string& bytes) {
  errno = 0;
  bytes.resize(most + 1);
  if (name == "-") {
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), stdin));
    return std::ferror(stdin) ? SystemText(errno) : "";
  }
  // Linux opens a folder like a file, and fails only when it is read.
  std::error_code ignored;
  if (std::filesystem::is_directory(Path(name), ignored)) return SystemText(EISDIR);
  errno = 0;
  std::ifstream file(Path(name), std::ios::binary);
  if (!file) return SystemText(errno);
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<size_t>(file.gcount()));
  return file.bad() ? SystemText(errno) : "";
}

bool IsPlainFile(const std::string& name) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(Path(name), ignored);
}

std::string WriteWholeFile(const std::string& name, std::string_view bytes) {
  std::error_code error;
  auto target = Path(name);
  // A link keeps pointing; a device or a pipe is written to, not replaced.
  if (const auto real = std::filesystem::canonical(target, error); !error) target = real;
  const auto kind = std::filesystem::status(target, error).type();
  const bool replace =
      kind == std::filesystem::file_type::regular || kind == std::filesystem::file_type::not_found;
  // With our own process's number, so that two programs that write the same file do not meet.
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

}  // namespace stmon
