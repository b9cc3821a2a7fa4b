// Every table, asked over all that it can be asked. A single checksum stands for the answers, which
// were compared with the product's tables when it was recorded: after a change that is meant, the
// failing row shows the new one.
#include "both_records.h"
#include "checksum.h"
#include "describe.h"
#include "describe_flat.h"
#include "doctest/doctest.h"
#include "thread_language.h"

namespace {

using test::Checksum;
using namespace std::string_literals;

void Add(Checksum& sum, const std::string& text) {
  sum.Add(text.data(), text.size());
}

// What a question writes into its buffer, and nothing of what was there before.
template <class Question>
void AddAnswer(Checksum& sum, Question question) {
  char text[512] = "";
  const uint32_t result = question(text);
  sum.Add(result);
  Add(sum, text);
}

void SelectEnglish() {
  char english[] = "EN";
  PatSetLocale(english);
  test::SetThreadLanguage(1033);
}

// Both records after a reply, where `reply` says something.
void AddReply(Checksum& sum, const std::string& reply) {
  test::Record record;
  test::Parse(record, reply);
  Add(sum, test::Describe(record));
  const PrnInfo before = test::PoisonedPrnInfo();
  PrnInfo info = before;
  SetPrnInfoFromReadbackCmd(&info, reply.data(), static_cast<int32_t>(reply.size()));
  Add(sum, test::Changes(before, info));
}

void AddStatusRows(Checksum& sum) {
  PrnInfo info{};
  for (info.statusCode = 0; info.statusCode < 0x10000; ++info.statusCode) {
    StatusRow row{};
    PatGetPrinterStatus(&info, &row);
    sum.Add(&row, sizeof row);
  }
}

void AddStatusTexts(Checksum& sum) {
  SelectEnglish();
  for (uint32_t code = 0; code < 1100; ++code) {
    for (const bool duplex : {false, true}) {
      test::BothRecords records({.statuses = {code}, .duplex = duplex});
      AddAnswer(sum, [&](char* text) { return PatGetSimpleString(&records.flat, text, 512); });
      AddAnswer(sum, [&](char* text) { return PatGetDetailString(&records.flat, text, 512); });
      AddAnswer(sum, [&](char* text) { return PatGetSimpleString_Ex(&records.list, text, 512); });
      AddAnswer(sum, [&](char* text) { return PatGetDetailString_Ex(&records.list, text, 512); });
    }
  }
}

void AddIcons(Checksum& sum) {
  for (uint32_t code = 0; code < 1100; ++code) {
    for (const bool online : {false, true}) {
      test::BothRecords records({.statuses = {code}, .online = online});
      AddAnswer(sum, [&](char* name) { return PatGetErrParts(&records.flat, name); });
      AddAnswer(sum, [&](char* name) { return PatGetErrParts_Ex(&records.list, name); });
    }
  }
}

void AddParts(Checksum& sum) {
  const PrnInfo info{};
  PrnPart part{};
  for (uint8_t code = 0; PatGetPrnParts(&info, code, &part); ++code) {
    Add(sum, part.bitmapName ? part.bitmapName : "");
    sum.Add(part.ropSet);
    sum.Add(part.ropClear);
  }
}

// The picture of every status with every set of trays 2 and 3, with and without the duplex unit.
void AddPictures(Checksum& sum) {
  for (uint32_t code = 0; code < 128; ++code) {
    for (const bool tray2 : {false, true}) {
      for (const bool tray3 : {false, true}) {
        for (const bool duplex : {false, true}) {
          test::Said said{.statuses = {code}, .duplex = duplex};
          if (tray2) said.trays.push_back({4, 8});
          if (tray3) said.trays.push_back({5, 8});
          test::BothRecords records(said);
          records.flat.currentTray = records.list.currentTray = 3 + code % 3;
          uint8_t codes[64], extraCodes[64];
          PatGetPrnBitmapEx(&records.flat, codes, extraCodes, sizeof codes);
          sum.Add(codes, sizeof codes);
          PatGetPrnBitmapEx_Ex(&records.list, codes, extraCodes, sizeof codes);
          sum.Add(codes, sizeof codes);
        }
      }
    }
  }
}

void AddPaper(Checksum& sum) {
  for (uint32_t code = 0; code < 256; ++code) {
    AddAnswer(sum, [=](char* text) { return PatGetPaperName(nullptr, code, text); });
    AddAnswer(sum, [=](char* text) { return PatGetPaperBitmap(nullptr, code, text); });
    AddAnswer(sum, [=](char* text) { return PatGetTrayName(nullptr, code, text); });
  }
  for (uint32_t level = 0; level < 256; ++level)
    AddAnswer(sum, [=](char* text) { return PatGetIconName(1, level, text, 0); });
}

void AddPaperBlocks(Checksum& sum) {
  for (int number = -1; number < 256; ++number) {
    const std::string digits = std::to_string(number);
    AddReply(sum, "\x1BT\r1\r" + digits + "\n");
    AddReply(sum, "\x1BL\r" + digits + "\r0\n");
  }
  for (int letter = ' '; letter < 127; ++letter)
    AddReply(sum, "\x1BT\r"s + static_cast<char>(letter) + "\r6\n");
}

void AddStatusBlocks(Checksum& sum) {
  for (int code = 0; code < 256; ++code)
    AddReply(sum, "\x1BS\r" + std::to_string(code) + "\r0\r1\n");
}

void AddOptionBlocks(Checksum& sum) {
  for (int letter = ' '; letter < 127; ++letter) {
    for (int bit = 0; bit < 8; ++bit)
      AddReply(sum, "\x1B\x44\r"s + static_cast<char>(letter) + ':' + static_cast<char>(1 << bit) +
                        "\n");
  }
}

}  // namespace

TEST_CASE("every answer that a table gives is the one that was checked") {
  const test::RecordedSum rows[] = {
      {"status rows", AddStatusRows, 0x3BC9628D},
      {"texts of the statuses, in English", AddStatusTexts, 0x45C3EE4C},
      {"icons of the statuses", AddIcons, 0x5CEC1AAB},
      {"layers of the picture", AddParts, 0xEC060B3B},
      {"pictures of the statuses", AddPictures, 0x8C842A91},
      {"names, orientation and levels of paper, names of trays", AddPaper, 0xBE0B8F1B},
      {"trays, paper sizes and bins of a reply", AddPaperBlocks, 0x3B3EF849},
      {"classes of the statuses of a reply", AddStatusBlocks, 0x361C8CE0},
      {"options of a reply", AddOptionBlocks, 0x52CA7BA9},
  };
  test::CheckRecorded(rows);
}
