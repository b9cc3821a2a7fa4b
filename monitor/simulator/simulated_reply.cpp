#include "simulator/simulated_reply.h"

#include <algorithm>

#include "wire/reply_frame.h"

namespace stmon {
namespace {

std::string BlockHead(char letter) {
  return {kEsc, letter};
}

void AddField(std::string& block, std::string_view field) {
  block += '\r';
  block += field;
}

// ESC S CR 32,68 CR 0 CR 1 CR 1 LF: codes, online flag (0 is online), tray and bin in use.
void AddStatus(std::string& reply, const PrinterState& state) {
  reply += BlockHead('S');
  AddField(reply, state.status);
  AddField(reply, state.online ? "0" : "1");
  AddField(reply, state.tray);
  if (!state.bin.empty()) AddField(reply, state.bin);
  reply += '\n';
}

void AddVersions(std::string& reply, const PrinterState& state) {
  reply += BlockHead('V');
  for (const ScenarioVersion& version : state.versions) {
    AddField(reply, version.label);
    AddField(reply, version.value);
  }
  reply += '\n';
}

void AddTrays(std::string& reply, const PrinterState& state) {
  reply += BlockHead('T');
  for (const ScenarioTray& tray : state.trays) {
    AddField(reply, tray.letter);
    AddField(reply, tray.paper);
  }
  reply += '\n';
}

void AddLevels(std::string& reply, const PrinterState& state) {
  reply += BlockHead('Z');
  for (const ScenarioTray& tray : state.trays) {
    AddField(reply, tray.letter);
    AddField(reply, std::to_string(tray.level));
  }
  reply += '\n';
}

void AddBins(std::string& reply, const PrinterState& state) {
  reply += BlockHead('L');
  for (const ScenarioBin& bin : state.bins) {
    AddField(reply, bin.number);
    AddField(reply, std::to_string(bin.state));
  }
  reply += '\n';
}

bool HasOption(const PrinterState& state, char letter) {
  return std::any_of(state.options.begin(), state.options.end(),
                     [&](const ScenarioOption& option) { return option.letter == letter; });
}

void AddPresence(std::string& reply, char letter, bool present) {
  reply += BlockHead(letter);
  AddField(reply, present ? "1" : "0");
  reply += '\n';
}

void AddOptionA(std::string& reply, const PrinterState& state) {
  AddPresence(reply, 'A', HasOption(state, 'A'));
}

void AddDuplexUnit(std::string& reply, const PrinterState& state) {
  AddPresence(reply, 'C', state.duplex);
}

// The block lists every option, those of the blocks A and C included: a reader begins its list anew
// here.
void AddOptions(std::string& reply, const PrinterState& state) {
  reply += BlockHead('D');
  if (state.duplex && !HasOption(state, 'D')) AddField(reply, "D:1");
  for (const ScenarioOption& option : state.options)
    AddField(reply, std::string{option.letter, ':', static_cast<char>(option.bits)});
  if (reply.back() == 'D') reply += '\r';
  reply += '\n';
}

void AddNumber(std::string& reply, const PrinterState& state) {
  reply += BlockHead('M');
  AddField(reply, std::to_string(state.number));
  reply += '\n';
}

void AddLanguage(std::string& reply, const PrinterState& state) {
  reply += BlockHead('E');
  AddField(reply, state.language);
  reply += '\n';
}

void AddFonts(std::string& reply, const PrinterState& state) {
  reply += BlockHead('F');
  for (const std::string& font : state.fonts)
    AddField(reply, font);
  reply += '\n';
}

struct BlockRow {
  char letter;
  void (*add)(std::string& reply, const PrinterState& state);
};

// The status block is sent first, asked for or not. Blocks H and B are asked for by every monitor
// and answered by no printer of this family.
constexpr BlockRow kBlocks[] = {
    {'V', AddVersions},    //
    {'T', AddTrays},       // paper
    {'Z', AddLevels},      //
    {'L', AddBins},        //
    {'A', AddOptionA},     //
    {'C', AddDuplexUnit},  //
    {'D', AddOptions},     //
    {'M', AddNumber},      //
    {'E', AddLanguage},    //
    {'F', AddFonts},       //
};

}  // namespace

std::string RequestedBlocks(std::string_view query) {
  std::string letters;
  for (size_t at = 0; at + 2 < query.size(); ++at) {
    if (query[at] == kEsc && query[at + 2] == '\n') letters += query[at + 1];
  }
  return letters;
}

std::string BuildReply(const PrinterState& state, std::string_view requested) {
  std::string reply;
  AddStatus(reply, state);
  for (const char letter : requested) {
    for (const BlockRow& row : kBlocks) {
      if (row.letter == letter) row.add(reply, state);
    }
  }
  reply += kEndMarker;
  return reply;
}

}  // namespace stmon
