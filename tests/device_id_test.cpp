#include "describe.h"
#include "doctest/doctest.h"
#include "support.h"

using namespace std::string_literals;

namespace {

struct DeviceIdCase {
  const char* why;
  std::vector<std::string> texts;  // one after the other into one record
  std::string expected;            // besides tag and size
};

const DeviceIdCase kTexts[] = {
    {"all keys",
     {"MFG:ORLEX;CMD:NDL,NPS;MDL:ZENTA Model A;DES:ZENTA Model A;"},
     "model='ZENTA Model A' maker='ORLEX' description='ZENTA Model A' code=255 languages[1 2]"},
    {"the later of two model keys decides",
     {"MDL:ZENTA C210;DES:ZENTA C250;"},
     "model='ZENTA C210' description='ZENTA C250' code=104"},
    {"the other order",
     {"DES:ZENTA C250;MDL:ZENTA C210;"},
     "model='ZENTA C210' description='ZENTA C250' code=103"},
    {"only the served printer counts as a model",
     {"MDL:ZENTA C250;"},
     "model='ZENTA C250' code=255"},
    {"the served printer is described", {"DES:ZENTA C210;"}, "description='ZENTA C210' code=103"},
    {"last fields without an end",
     {"MDL:ZENTA C2100", "DES:ZENTA C250;MFG:ORLEX"},
     "model='ZENTA C210' maker='ORLEX' description='ZENTA C250' code=104"},
    {"languages without an end: the last one is cut", {"CMD:NDL,NPSX"}, "languages[1 2]"},
    {"unknown languages count", {"CMD:NDL,XYZ,NWC;"}, "languages[1 0 14]"},
    {"a long language is split", {"CMD:ABCDEFGNPS,GL2;"}, "languages[0 2 12]"},
    {"an empty language", {"CMD:;"}, "languages[0]"},
    {"no languages", {"CMD:NDL;", "CMD:"}, ""},
    {"empty values", {"MFG:;MDL:;DES:;"}, "model='' maker='' description='' code=255"},
    {"keys without a value", {"MFG:ORLEX;MFG:", "MDL:"}, "model='' maker='' code=255"},
    {"unknown keys, lower case, a space before the key",
     {"SN:12;mfg:ORLEX; MFG:ORLEX;MF;:;MFG;"},
     ""},
    {"only separators", {";;;;"}, ""},
    {"nothing", {""}, ""},
    {"a filled record is filled again",
     {"MFG:ORLEX;CMD:NDL,NPS;MDL:ZENTA C210;", "MFG:OTHER;CMD:NWC;"},
     "model='ZENTA C210' maker='OTHER' code=103 languages[14]"},
    {"a zero byte ends the string", {"MFG:OR\0LEX;MDL:ZENTA C210;"s}, "maker='OR'"},
    {"the length bytes of the wire hide the first key",
     {"\x01\x1FMFG:ORLEX;MDL:ZENTA C210;"},
     "model='ZENTA C210' code=103"},
    {"length bytes of which the first is zero end the string", {"\0\x1FMFG:ORLEX;"s}, ""},
    {"a field of 255 bytes",
     {"MFG:" + std::string(250, 'x') + ";MDL:ZENTA C210;"},
     "model='ZENTA C210' maker='" + std::string(250, 'x') + "' code=103"},
    {"a longer field is cut; its rest is read as the next",
     {"MFG:" + std::string(251, 'x') + "MDL:ZENTA C210;"},
     "model='ZENTA C210' maker='" + std::string(251, 'x') + "' code=103"},
};

uint32_t ReadDeviceId(test::Record& record, std::string_view text) {
  test::GuardedBytes bytes(text);
  return SetModelInfoExFromDeviceID(&record, bytes.data(), static_cast<uint32_t>(bytes.size()));
}

}  // namespace

TEST_CASE("a Device ID fills the fields of its keys") {
  for (const DeviceIdCase& row : kTexts) {
    CAPTURE(row.why);
    test::Record record;
    for (const std::string& text : row.texts)
      CHECK(ReadDeviceId(record, text) == 1);
    CHECK(test::Describe(record) ==
          (row.expected.empty() ? "tag=404 sized" : "tag=404 sized " + row.expected));
  }
}

TEST_CASE("a Device ID ends at its length and at its zero byte, whatever the other says") {
  for (const DeviceIdCase& row : kTexts) {
    CAPTURE(row.why);
    test::ForEveryCut(row.texts[0], [&](test::GuardedBytes& cut) {
      test::Record shorter, longer;
      CHECK(SetModelInfoExFromDeviceID(&shorter, cut.data(), static_cast<uint32_t>(cut.size())) ==
            1);
      test::GuardedBytes terminated(std::string(cut.data(), static_cast<size_t>(cut.size())) +
                                    '\0');
      CHECK(SetModelInfoExFromDeviceID(&longer, terminated.data(), 60000) == 1);
      CHECK(test::Describe(shorter) == test::Describe(longer));
    });
  }
}

TEST_CASE("a missing Device ID counts as an empty one; a missing record is refused") {
  test::Record record;
  CHECK(SetModelInfoExFromDeviceID(&record, nullptr, 5) == 1);
  CHECK(test::Describe(record) == "tag=404 sized");
  CHECK(SetModelInfoExFromDeviceID(nullptr, "MFG:A;", 6) == 0);
  CHECK(SetModelInfoExFromDeviceID(nullptr, nullptr, 0) == 0);
}
