// Every table, asked over all that it can be asked. The answers were compared with the product's
// tables when they were kept.
#include "both_records.h"
#include "describe.h"
#include "describe_flat.h"
#include "doctest/doctest.h"
#include "kept.h"
#include "thread_language.h"

namespace {

using test::Lines;
using namespace std::string_literals;

// What a question returns and writes into its buffer, and nothing of what was there before.
template <class Question>
std::string Answer(Question question) {
  char text[512] = "";
  const uint32_t result = question(text);
  return std::to_string(result) + ' ' + test::Quoted(text);
}

void SelectEnglish() {
  char english[] = "EN";
  PatSetLocale(english);
  test::SetThreadLanguage(1033);
}

// What both records hold after a reply.
std::string After(const std::string& reply) {
  test::Record record;
  test::Parse(record, reply);
  const PrnInfo before = test::PoisonedPrnInfo();
  PrnInfo info = before;
  SetPrnInfoFromReadbackCmd(&info, reply.data(), static_cast<int32_t>(reply.size()));
  return test::Describe(record) + " | " + test::Changes(before, info);
}

void AddStatusRows(Lines& lines) {
  PrnInfo info{};
  for (info.statusCode = 0; info.statusCode < 0x10000; ++info.statusCode) {
    StatusRow row{};
    PatGetPrinterStatus(&info, &row);
    lines.Add(info.statusCode,
              (row.code == info.statusCode ? "" : "as" + test::Listed(row.code) + ' ') + "texts" +
                  test::Listed(row.simpleId, row.detailId) + " level" + test::Listed(row.level));
  }
}

// Of each record the short text and the detail; both again where the duplex unit makes them other.
void AddStatusTexts(Lines& lines) {
  SelectEnglish();
  for (uint32_t code = 0; code < 1100; ++code) {
    std::string told[2];
    for (const bool duplex : {false, true}) {
      test::BothRecords records({.statuses = {code}, .duplex = duplex});
      told[duplex] =
          "flat " + Answer([&](char* to) { return PatGetSimpleString(&records.flat, to, 512); }) +
          ' ' + Answer([&](char* to) { return PatGetDetailString(&records.flat, to, 512); }) +
          " list " +
          Answer([&](char* to) { return PatGetSimpleString_Ex(&records.list, to, 512); }) + ' ' +
          Answer([&](char* to) { return PatGetDetailString_Ex(&records.list, to, 512); });
    }
    lines.Add(code, told[0] + (told[1] == told[0] ? "" : " with duplex " + told[1]));
  }
}

void AddIcons(Lines& lines) {
  for (uint32_t code = 0; code < 1100; ++code) {
    std::string answers;
    for (const bool online : {false, true}) {
      test::BothRecords records({.statuses = {code}, .online = online});
      answers += online ? " online " : "offline ";
      answers += Answer([&](char* name) { return PatGetErrParts(&records.flat, name); }) + ' ' +
                 Answer([&](char* name) { return PatGetErrParts_Ex(&records.list, name); });
    }
    lines.Add(code, answers);
  }
}

void AddParts(Lines& lines) {
  const PrnInfo info{};
  PrnPart part{};
  for (uint8_t code = 0; PatGetPrnParts(&info, code, &part); ++code)
    lines.Add(code, test::Quoted(part.bitmapName ? part.bitmapName : "") +
                        test::Listed(part.ropSet, part.ropClear));
}

std::string Codes(const uint8_t (&codes)[64]) {
  std::string listed;
  for (size_t i = 0; i < 64 && codes[i] != 0; ++i)
    listed += test::Listed(codes[i]);
  return listed;
}

// The picture of every status with every set of trays 2 and 3, with and without the duplex unit.
void AddPictures(Lines& lines) {
  for (const bool tray2 : {false, true}) {
    for (const bool tray3 : {false, true}) {
      for (const bool duplex : {false, true}) {
        lines.Add("with"s + (tray2 ? " tray 2" : "") + (tray3 ? " tray 3" : "") +
                  (duplex ? " duplex" : ""));
        for (uint32_t code = 0; code < 128; ++code) {
          test::Said said{.statuses = {code}, .duplex = duplex};
          if (tray2) said.trays.push_back({4, 8});
          if (tray3) said.trays.push_back({5, 8});
          test::BothRecords records(said);
          records.flat.currentTray = records.list.currentTray = 3 + code % 3;
          uint8_t flat[64], list[64], extraCodes[64];
          PatGetPrnBitmapEx(&records.flat, flat, extraCodes, sizeof flat);
          PatGetPrnBitmapEx_Ex(&records.list, list, extraCodes, sizeof list);
          lines.Add(code, "flat" + Codes(flat) + " list" + Codes(list));
        }
      }
    }
  }
}

void AddPaper(Lines& lines) {
  for (uint32_t code = 0; code < 256; ++code)
    lines.Add(code, Answer([=](char* text) { return PatGetPaperName(nullptr, code, text); }) + ' ' +
                        Answer([=](char* text) { return PatGetPaperBitmap(nullptr, code, text); }));
  lines.Add("trays");
  for (uint32_t code = 0; code < 256; ++code)
    lines.Add(code, Answer([=](char* text) { return PatGetTrayName(nullptr, code, text); }));
  lines.Add("levels");
  for (uint32_t level = 0; level < 256; ++level)
    lines.Add(level, Answer([=](char* text) { return PatGetIconName(1, level, text, 0); }));
}

void AddPaperBlocks(Lines& lines) {
  for (int number = -1; number < 256; ++number) {
    const std::string digits = std::to_string(number);
    lines.Add("T 1 " + digits + ": " + After("\033T\r1\r" + digits + "\n"));
    lines.Add("L " + digits + ": " + After("\033L\r" + digits + "\r0\n"));
  }
  for (int letter = ' '; letter < 127; ++letter)
    lines.Add("T "s + static_cast<char>(letter) + ": " +
              After("\033T\r"s + static_cast<char>(letter) + "\r6\n"));
}

void AddStatusBlocks(Lines& lines) {
  for (uint32_t code = 0; code < 256; ++code)
    lines.Add(code, After("\033S\r" + std::to_string(code) + "\r0\r1\n"));
}

void AddOptionBlocks(Lines& lines) {
  for (int letter = ' '; letter < 127; ++letter) {
    for (int bit = 0; bit < 8; ++bit) {
      const std::string option = static_cast<char>(letter) + ":"s + static_cast<char>(1 << bit);
      lines.Add(test::Quoted(option) + ": " + After("\033\x44\r" + option + "\n"));
    }
  }
}

}  // namespace

TEST_CASE("every answer that a table gives is the one that was checked") {
  struct Row {
    const char* name;
    void (*add)(Lines& lines);
  };
  for (const Row& row : {Row{"status_rows", AddStatusRows},
                         {"status_texts", AddStatusTexts},
                         {"status_icons", AddIcons},
                         {"parts", AddParts},
                         {"status_pictures", AddPictures},
                         {"paper_names", AddPaper},
                         {"paper_blocks", AddPaperBlocks},
                         {"status_blocks", AddStatusBlocks},
                         {"option_blocks", AddOptionBlocks}}) {
    Lines lines;
    row.add(lines);
    test::CheckKept(row.name, lines.Text());
  }
}
