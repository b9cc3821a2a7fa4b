#include <string_view>

#include "report/reports.h"
#include "wire/reply_frame.h"
#include "words/safe_text.h"

namespace stmon {
namespace {

// For people who look at bytes because something is wrong. A letter means one thing as a request
// and another as a block.
struct LetterRow {
  char letter;
  const char* asked;     // as a request
  const char* answered;  // as a block
};

constexpr LetterRow kLetters[] = {
    //  letter  request                       block
    {'S', "status", "status codes, online flag (0 is online), tray in use, bin in use"},
    {'V', "versions", "versions: label and value, up to three"},
    {'T', "paper of each tray", "trays: letter and paper number"},
    {'Z', "level of each tray", "trays: letter and level"},
    {'H', "request H, never answered", "block H"},
    {'L', "output bins", "output bins: number and state"},
    {'A', "option A", "option 4: 0 absent, else present"},
    {'B', "request B, never answered", "block B"},
    {'C', "duplex unit", "duplex unit: 0 absent, else present"},
    {'D', "options", "options: letter and bits"},
    {'M', "number", "number"},
    {'E', "printer language in use", "printer language in use"},
    {'F', "fonts", "fonts"},
    {' ', "end of the query", "end marker"},
};

const char* Meaning(char letter, bool asked) {
  for (const LetterRow& row : kLetters) {
    if (row.letter == letter) return asked ? row.asked : row.answered;
  }
  return asked ? "unknown request" : "unknown block: nothing after it is read";
}

// The fields of a block, as a reader would see them.
std::string FieldText(const Block& block) {
  std::string text;
  for (const std::string& field : Fields(block))
    text += (text.empty() ? "" : "  ") + EscapeBytes(field);
  return text;
}

void AddLines(std::string& report, std::string_view bytes) {
  constexpr size_t kPerLine = 24;
  constexpr size_t kMostLines = 12;  // a flood is not printed whole
  for (size_t at = 0, line = 0; at < bytes.size(); at += kPerLine, ++line) {
    if (line == kMostLines) {
      report += "      ... " + std::to_string(bytes.size() - at) + " more bytes\n";
      return;
    }
    report += "      " + HexBytes(bytes.substr(at, kPerLine)) + "\n";
  }
}

void AddQuery(std::string& report, std::string_view query) {
  report += "Query, " + std::to_string(query.size()) + " bytes\n";
  size_t at = 0;
  const size_t first = query.find('\x1B');
  if (first != 0) {
    report += "  prefix\n";
    AddLines(report, query.substr(0, first));
    at = first == std::string_view::npos ? query.size() : first;
  }
  while (at < query.size()) {
    const size_t next = query.find('\x1B', at + 1);
    const std::string_view request =
        query.substr(at, next == std::string_view::npos ? next : next - at);
    const char letter = request.size() > 1 ? request[1] : '\0';
    report += std::string("  ") + letter + "   " + Meaning(letter, true) + "\n";
    AddLines(report, request);
    at += request.size();
  }
}

void AddReply(std::string& report, const Exchange& exchange) {
  report += "Reply, " + std::to_string(exchange.reply.size()) + " bytes\n";
  for (const Block& block : SplitBlocks(exchange.reply)) {
    if (!block.whole) {
      report += block.letter == 0 ? "  ?   no block\n" : "  ?   a block without its end\n";
      report += "      " + EscapeBytes(block.bytes.substr(0, 72)) + "\n";
    } else {
      report += std::string("  ") + EscapeBytes({&block.letter, 1}) + "   " +
                Meaning(block.letter, false) + "\n";
      const std::string fields = FieldText(block);
      if (!fields.empty()) report += "      " + fields + "\n";
    }
    AddLines(report, block.bytes);
  }
  if (exchange.surplus > 0) {
    report +=
        "  and " + std::to_string(exchange.surplus) + " bytes after the end marker, dropped\n";
  }
}

}  // namespace

std::string RawReport(const Snapshot& snapshot) {
  std::string report;
  if (!snapshot.source.query.empty()) AddQuery(report, snapshot.source.query);
  AddReply(report, snapshot.exchange);
  return report;
}

}  // namespace stmon
