// Prints what the library makes of many inputs as text, for a comparison of two builds: replies,
// Device IDs and print managers' records, each seed of the fuzz corpus and changes of it.
//
//   stmdata_dump CORPUS
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "describe.h"
#include "describe_flat.h"
#include "manager_source.h"
#include "support.h"

namespace {

namespace fs = std::filesystem;

using Bytes = std::vector<uint8_t>;

// The same numbers in every build.
struct Numbers {
  uint32_t state = 1;
  uint32_t Below(uint32_t limit) {
    state = state * 1664525 + 1013904223;
    return (state >> 8) % limit;
  }
};

Bytes Changed(Bytes bytes, Numbers& numbers) {
  for (uint32_t left = 1 + numbers.Below(4); left > 0 && !bytes.empty(); --left) {
    const uint32_t at = numbers.Below(static_cast<uint32_t>(bytes.size()));
    const uint32_t kind = numbers.Below(4);
    if (kind == 0) bytes.resize(at);
    if (kind == 1) bytes.insert(bytes.begin() + at, static_cast<uint8_t>(numbers.Below(256)));
    if (kind > 1) bytes[at] = static_cast<uint8_t>("\r\n\033 ,:;01Sx\xFF"[numbers.Below(13)]);
  }
  return bytes;
}

void Print(const char* what, const std::string& text) {
  std::printf("  %s ", what);
  for (const char byte : text) {
    const bool plain = byte >= ' ' && byte < 0x7F;
    std::printf(plain ? "%c" : "<%02X>", static_cast<uint8_t>(byte));
  }
  std::printf("\n");
}

struct Both {
  test::Record list;
  PrnInfo flat{};
};

// A call with a buffer, its result and the library's error in front of the text.
template <class Call>
void PrintText(const char* what, Call call) {
  char text[512] = "";
  const uint32_t result = call(text);
  Print(what, std::to_string(result) + ' ' + std::to_string(PatGetError()) + ' ' + text);
}

// What the library says about both records.
void PrintAnswers(Both& both) {
  Print("list", test::Describe(both.list));
  Print("flat", test::Changes(PrnInfo{}, both.flat));
  for (const char* name : {"EN", "JP"}) {
    char language[] = {name[0], name[1], '\0'};
    PatSetLocale(language);
    PrintText("line", [&](char* text) { return PatGetSimpleString_Ex(&both.list, text, 512); });
    PrintText("detail", [&](char* text) { return PatGetDetailString_Ex(&both.list, text, 512); });
  }
  PrintText("flat line", [&](char* text) { return PatGetSimpleString(&both.flat, text, 512); });
  PrintText("flat detail", [&](char* text) { return PatGetDetailString(&both.flat, text, 512); });
  PrintText("icon", [&](char* text) { return PatGetErrParts_Ex(&both.list, text); });
  PrintText("flat icon", [&](char* text) { return PatGetErrParts(&both.flat, text); });
  PrintText("parts", [&](char* text) {
    PrnBitmap parts{};
    const uint32_t result = PatGetPrnBitmap_Ex(&both.list, &parts);
    std::copy(std::begin(parts.partCodes), std::end(parts.partCodes), text);
    return result;
  });
  for (const TrayNode* tray = both.list.trayList; tray; tray = tray->next) {
    PrintText("paper",
              [&](char* text) { return PatGetPaperName_Ex(nullptr, tray->paperCode, text); });
  }
}

const char* Text(const Bytes& bytes) {
  return bytes.empty() ? "" : reinterpret_cast<const char*>(bytes.data());
}

void ReadReply(const Bytes& bytes) {
  Both both;
  const auto length = static_cast<int32_t>(bytes.size());
  // Twice, so that nodes and texts are used again.
  for (int i = 0; i < 2; ++i) {
    SetPrnInfoExFromReadbackCmd(&both.list, Text(bytes), length);
    SetPrnInfoFromReadbackCmd(&both.flat, Text(bytes), length);
  }
  PrintAnswers(both);
}

void ReadDeviceId(const Bytes& bytes) {
  Both both;
  const auto length = static_cast<uint32_t>(bytes.size());
  SetModelInfoExFromDeviceID(&both.list, Text(bytes), length);
  SetModelInfoFromDeviceID(&both.flat, Text(bytes), length);
  PrintAnswers(both);
}

void ReadManager(const Bytes& bytes) {
  Both both;
  fuzz::Source source(bytes.data(), bytes.size());
  while (!source.Empty()) {
    const PMPrnInfo manager = fuzz::DrawManager(source);
    PatSetPMPrnInfoToPrnInfo(&both.list, &manager, 0xFFFFFFFF);
    PatSetPMPrnInfoToPrnInfo_0(&both.flat, &manager, 0xFFFFFFFF);
  }
  PrintAnswers(both);
}

struct Kind {
  const char* folder;  // of the corpus
  void (*read)(const Bytes& bytes);
  int changes;  // of each seed
};

constexpr Kind kKinds[] = {
    {"reply", ReadReply, 50},             //
    {"reply_sequence", ReadReply, 50},    //
    {"device_id", ReadDeviceId, 50},      //
    {"print_manager", ReadManager, 200},  //
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  Numbers numbers;
  for (const Kind& kind : kKinds) {
    std::vector<fs::path> seeds;
    for (const auto& entry : fs::directory_iterator(fs::path(arguments[1]) / kind.folder))
      seeds.push_back(entry.path());
    std::sort(seeds.begin(), seeds.end());
    for (const fs::path& seed : seeds) {
      std::ifstream file(seed, std::ios::binary);
      const Bytes bytes{std::istreambuf_iterator<char>(file), {}};
      for (int change = 0; change <= kind.changes; ++change) {
        std::printf("%s %s, change %d\n", kind.folder, seed.filename().string().c_str(), change);
        kind.read(change == 0 ? bytes : Changed(bytes, numbers));
      }
    }
  }
}
