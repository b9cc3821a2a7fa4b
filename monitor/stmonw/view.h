// What the window shows, made from the latest poll and the last good one. Nothing here knows of
// controls.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <vector>

#include "snapshot/snapshot.h"

namespace stmonw {

// What is known of the printer that is asked.
struct Knowledge {
  std::string source;                           // "192.0.2.10:9100"
  std::chrono::system_clock::time_point since;  // when it was asked first
  std::optional<stmon::Snapshot> latest;
  std::optional<stmon::Snapshot> lastGood;  // with a status block; kept while nothing answers
};

void Learn(Knowledge& knowledge, stmon::Snapshot snapshot);

// Reads again what is known, for its texts in another language.
void Translate(Knowledge& knowledge, const stmon::Language& language);

struct TrayLine {
  std::wstring text;  // the whole line, for those who cannot see its columns
  std::wstring name;
  std::wstring paper;
  std::wstring level;
  std::string paperBitmap;  // names of the library's resources, may be empty
  std::string levelIcon;
  bool operator==(const TrayLine&) const = default;
};

struct View {
  std::wstring shortText;
  std::wstring detail;
  std::string icon;
  std::vector<std::wstring> others;  // conditions beside the one that decides
  std::vector<TrayLine> trays;
  std::vector<std::wstring> equipment;
};

// In the language that the snapshots were taken in, if there are any.
View MakeView(const Knowledge& knowledge, const stmon::Language& language);

// A shallow copy of the record that decides picture and texts: the last good one, marked when the
// printer has ceased to answer. Lives no longer than `knowledge` stays as it is.
PrnInfoEx ShownRecord(const Knowledge& knowledge);

// "Answered at 14:03:22." or what is the trouble and how old the data are.
std::wstring ConnectionText(const Knowledge& knowledge, std::chrono::system_clock::time_point now,
                            const stmon::Language& language);

}  // namespace stmonw
