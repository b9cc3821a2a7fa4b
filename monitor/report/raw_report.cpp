#include <string_view>

#include "report/json.h"
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

struct Request {
  char letter = 0;  // 0: the bytes before the first request
  std::string_view bytes;
};

std::vector<Request> SplitQuery(std::string_view query) {
  std::vector<Request> requests;
  while (!query.empty()) {
    const std::string_view bytes = query.substr(0, query.find('\x1B', 1));
    const bool framed = bytes[0] == '\x1B' && bytes.size() > 1;
    requests.push_back({framed ? bytes[1] : '\0', bytes});
    query.remove_prefix(bytes.size());
  }
  return requests;
}

void AddQuery(std::string& report, std::string_view query) {
  report += "Query, " + std::to_string(query.size()) + " bytes\n";
  for (const Request& request : SplitQuery(query)) {
    report += request.letter == 0 ? "  prefix\n"
                                  : std::string("  ") + request.letter + "   " +
                                        Meaning(request.letter, true) + "\n";
    AddLines(report, request.bytes);
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

// The letter of a request or block, null for bytes that are none.
Json LetterJson(char letter) {
  return letter == 0 ? Json(nullptr) : Json(EscapeBytes({&letter, 1}));
}

Json FieldsJson(const Block& block) {
  Json fields = Json::array();
  for (const std::string& field : Fields(block))
    fields.push_back(EscapeBytes(field));
  return fields;
}

}  // namespace

std::string RawReport(const Snapshot& snapshot) {
  std::string report;
  if (!snapshot.source.query.empty()) AddQuery(report, snapshot.source.query);
  AddReply(report, snapshot.exchange);
  return report;
}

Json RawJson(const Snapshot& snapshot) {
  Json json{{"query", Json::array()}, {"reply", Json::array()}};
  for (const Request& request : SplitQuery(snapshot.source.query))
    json["query"].push_back(
        {{"letter", LetterJson(request.letter)}, {"bytes", HexBytes(request.bytes)}});
  for (const Block& block : SplitBlocks(snapshot.exchange.reply)) {
    json["reply"].push_back({{"letter", LetterJson(block.letter)},
                             {"whole", block.whole},
                             {"fields", block.whole ? FieldsJson(block) : Json::array()},
                             {"bytes", HexBytes(block.bytes)}});
  }
  json["bytes_dropped"] = snapshot.exchange.surplus;
  return json;
}

}  // namespace stmon
