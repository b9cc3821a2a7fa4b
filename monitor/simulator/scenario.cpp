#include "simulator/scenario.h"

#include <charconv>
#include <optional>
#include <span>

#include "system/files.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

constexpr size_t kLongestFile = 65536;  // bytes; a scenario is a page of text

struct MannerName {
  const char* name;
  Manner manner;
  bool takesAmount;
};

constexpr MannerName kManners[] = {
    //  name      manner           number of bytes follows
    {"whole", Manner::Whole, false},      // the answer at once
    {"slowly", Manner::Slowly, false},    // byte by byte
    {"twice", Manner::Twice, false},      // the answer two times in one packet
    {"cut", Manner::Cut, true},           // the first N bytes, then the connection is closed
    {"stall", Manner::Stall, true},       // the first N bytes, the connection stays open
    {"silent", Manner::Silent, false},    // no answer, the connection stays open
    {"close", Manner::Close, false},      // no answer, the connection is closed
    {"reset", Manner::Reset, false},      // no answer, the connection is reset
    {"garbage", Manner::Garbage, false},  // bytes that are no reply
    {"flood", Manner::Flood, true},       // a reply that begins well and goes on for N bytes
};

// A field goes out between separators: it is never empty and holds none of them.
bool IsField(std::string_view text, size_t longest) {
  if (text.empty() || text.size() > longest) return false;
  for (const char byte : text) {
    if (byte < 0x20 || byte == 0x7F) return false;
  }
  return true;
}

std::optional<uint32_t> Number(std::string_view text, uint32_t most) {
  uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || value > most) return {};
  return value;
}

std::vector<std::string_view> Words(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  std::vector<std::string_view> words;
  for (size_t at = line.find_first_not_of(kBlanks); at != std::string_view::npos;) {
    const size_t end = line.find_first_of(kBlanks, at);
    words.push_back(line.substr(at, end == std::string_view::npos ? end : end - at));
    at = line.find_first_not_of(kBlanks, end);
  }
  return words;
}

bool IsTrayLetter(std::string_view text) {
  return text.size() == 1 && std::string_view("TM12345").find(text[0]) != std::string_view::npos;
}

bool IsStatusField(std::string_view text) {
  while (true) {
    const size_t comma = text.find(',');
    if (!Number(text.substr(0, comma), 999999)) return false;
    if (comma == std::string_view::npos) return true;
    text.remove_prefix(comma + 1);
  }
}

// Lists are replaced by the first line of a state that adds to them.
struct Reader {
  PrinterState state;
  bool trays = false;
  bool bins = false;
  bool versions = false;
  bool fonts = false;
  bool options = false;
};

template <class Entry>
void Add(std::vector<Entry>& list, bool& begun, Entry entry) {
  if (!begun) list.clear();
  begun = true;
  list.push_back(std::move(entry));
}

using Arguments = std::span<const std::string_view>;

std::optional<bool> YesNo(std::string_view word) {
  if (word == "yes") return true;
  if (word == "no") return false;
  return {};
}

bool ReadStatus(Reader& reader, Arguments words) {
  if (!IsStatusField(words[0])) return false;
  reader.state.status = words[0];
  return true;
}

bool ReadOnline(Reader& reader, Arguments words) {
  const auto value = YesNo(words[0]);
  if (value) reader.state.online = *value;
  return value.has_value();
}

bool ReadTrayInUse(Reader& reader, Arguments words) {
  reader.state.tray = words[0];
  return IsTrayLetter(words[0]);
}

bool ReadBinInUse(Reader& reader, Arguments words) {
  reader.state.bin = words[0] == "none" ? "" : words[0];
  return words[0] == "none" || Number(words[0], 15).value_or(0) > 0;
}

bool ReadTray(Reader& reader, Arguments words) {
  const std::string_view digits = words[1].substr(words[1].starts_with('-') ? 1 : 0);
  const auto level = Number(words[2], 999999);
  if (!IsTrayLetter(words[0]) || !Number(digits, 99999) || !level) return false;
  Add(reader.state.trays, reader.trays, {std::string(words[0]), std::string(words[1]), *level});
  return true;
}

bool ReadBin(Reader& reader, Arguments words) {
  const auto state = Number(words[1], 999999);
  if (Number(words[0], 15).value_or(0) == 0 || !state) return false;
  Add(reader.state.bins, reader.bins, {std::string(words[0]), *state});
  return true;
}

bool ReadVersion(Reader& reader, Arguments words) {
  if (!IsField(words[0], 6) || !IsField(words[1], 6)) return false;
  Add(reader.state.versions, reader.versions, {std::string(words[0]), std::string(words[1])});
  return reader.state.versions.size() <= 3;
}

bool ReadNumber(Reader& reader, Arguments words) {
  const auto value = Number(words[0], UINT32_MAX);
  if (value) reader.state.number = *value;
  return value.has_value();
}

bool ReadLanguage(Reader& reader, Arguments words) {
  reader.state.language = words[0];
  return IsField(words[0], 3);
}

bool ReadFont(Reader& reader, Arguments words) {
  Add(reader.state.fonts, reader.fonts, std::string(words[0]));
  return IsField(words[0], 126);
}

bool ReadDuplex(Reader& reader, Arguments words) {
  const auto value = YesNo(words[0]);
  if (value) reader.state.duplex = *value;
  return value.has_value();
}

bool ReadOption(Reader& reader, Arguments words) {
  const auto bits = Number(words[1], 255);
  // The bits go out as a raw byte; CR and LF would end the entry.
  if (!IsField(words[0], 1) || !bits || *bits == '\r' || *bits == '\n') return false;
  Add(reader.state.options, reader.options, {words[0][0], static_cast<uint8_t>(*bits)});
  return true;
}

bool ReadManner(Reader& reader, Arguments words) {
  for (const MannerName& row : kManners) {
    if (words[0] != row.name) continue;
    if (words.size() != (row.takesAmount ? 2u : 1u)) return false;
    const auto amount = row.takesAmount ? Number(words[1], 1000000000) : 0u;
    if (!amount) return false;
    reader.state.manner = row.manner;
    reader.state.amount = *amount;
    return true;
  }
  return false;
}

bool ReadRepeat(Reader& reader, Arguments words) {
  reader.state.repeat = Number(words[0], 1000000).value_or(0);
  return reader.state.repeat > 0;
}

struct Keyword {
  const char* name;
  size_t fewest;
  size_t most;
  bool (*read)(Reader& reader, Arguments words);
  const char* form;
};

constexpr Keyword kKeywords[] = {
    //  name     words after it  reader          form for messages
    {"status", 1, 1, ReadStatus, "status CODE,CODE,... with codes from 0 to 999999"},
    {"online", 1, 1, ReadOnline, "online yes|no"},
    {"tray-in-use", 1, 1, ReadTrayInUse, "tray-in-use T|M|1|2|3|4|5"},
    {"bin-in-use", 1, 1, ReadBinInUse, "bin-in-use 1..15|none"},
    {"tray", 3, 3, ReadTray, "tray T|M|1|2|3|4|5 PAPER-NUMBER LEVEL"},
    {"bin", 2, 2, ReadBin, "bin 1..15 STATE"},
    {"version", 2, 2, ReadVersion,
     "version LABEL VALUE, at most 6 characters each, at most 3 times"},
    {"number", 1, 1, ReadNumber, "number 0..4294967295"},
    {"language", 1, 1, ReadLanguage, "language CODE with at most 3 characters"},
    {"font", 1, 1, ReadFont, "font NAME"},
    {"duplex", 1, 1, ReadDuplex, "duplex yes|no"},
    {"option", 2, 2, ReadOption, "option LETTER BITS with bits from 0 to 255, not 10 or 13"},
    {"manner", 1, 2, ReadManner,
     "manner whole|slowly|twice|cut N|stall N|silent|close|reset|garbage|flood N"},
    {"repeat", 1, 1, ReadRepeat, "repeat 1..1000000"},
};

std::string ReadLine(Reader& reader, const std::vector<std::string_view>& words) {
  for (const Keyword& keyword : kKeywords) {
    if (words[0] != keyword.name) continue;
    const Arguments arguments = Arguments(words).subspan(1);
    const bool counted = arguments.size() >= keyword.fewest && arguments.size() <= keyword.most;
    if (counted && keyword.read(reader, arguments)) return {};
    return std::string("expected ") + keyword.form;
  }
  return "unknown word '" + EscapeBytes(words[0]) + "'";
}

}  // namespace

std::string ReadScenario(std::string_view text, Scenario& scenario) {
  Reader reader;
  scenario.states.clear();
  for (size_t number = 1; !text.empty(); ++number) {
    const size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    const auto words = Words(line.substr(0, line.find('#')));
    if (words.empty()) continue;
    if (words.size() == 1 && words[0] == "next") {
      scenario.states.push_back(reader.state);
      reader = Reader{reader.state};
      reader.state.repeat = 1;
      continue;
    }
    const std::string wrong = ReadLine(reader, words);
    if (!wrong.empty()) return "line " + std::to_string(number) + ": " + wrong;
  }
  scenario.states.push_back(reader.state);
  return {};
}

std::string LoadScenario(const std::string& name, Scenario& scenario) {
  scenario.name = name;
  for (const NamedScenario* row = kNamedScenarios; row->name; ++row) {
    if (name == row->name) return ReadScenario(row->text, scenario);
  }
  std::string text;
  const std::string trouble = ReadWholeFile(name, kLongestFile, text);
  if (!trouble.empty()) {
    return "scenario '" + CleanUtf8(name) + "': neither a built-in scenario nor a readable file (" +
           trouble + "); '--scenario list' names the built-in ones";
  }
  if (text.size() > kLongestFile) {
    return "scenario '" + CleanUtf8(name) + "': longer than 64 KiB, which no scenario is";
  }
  const std::string wrong = ReadScenario(text, scenario);
  return wrong.empty() ? wrong : "scenario '" + CleanUtf8(name) + "', " + wrong;
}

}  // namespace stmon
