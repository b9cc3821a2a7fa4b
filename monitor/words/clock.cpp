#include "words/clock.h"

#include <ctime>

#include "words/phrases.h"

namespace stmon {
namespace {

std::string Format(const std::tm& parts, const char* form) {
  char text[32];
  return {text, std::strftime(text, sizeof text, form, &parts)};
}

}  // namespace

std::string UtcText(std::chrono::system_clock::time_point when) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
  std::tm parts{};
#ifdef _WIN32
  gmtime_s(&parts, &seconds);
#else
  gmtime_r(&seconds, &parts);
#endif
  return Format(parts, "%Y-%m-%dT%H:%M:%SZ");
}

std::string LocalText(std::chrono::system_clock::time_point when) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(when);
  std::tm parts{};
#ifdef _WIN32
  localtime_s(&parts, &seconds);
#else
  localtime_r(&seconds, &parts);
#endif
  return Format(parts, "%Y-%m-%d %H:%M:%S");
}

std::string AgeText(std::chrono::steady_clock::duration age, const Language& language) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(age).count();
  if (seconds < 120) return Say(Phrase::Seconds, language, {std::to_string(seconds)});
  if (seconds < 7200) return Say(Phrase::Minutes, language, {std::to_string(seconds / 60)});
  return Say(Phrase::Hours, language,
             {std::to_string(seconds / 3600), std::to_string(seconds / 60 % 60)});
}

}  // namespace stmon
