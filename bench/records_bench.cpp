// Replies, Device IDs, the query and the status row.
#include <cstring>
#include <string>
#include <string_view>

#include "bench.h"
#include "stmdata/stmdata.h"

namespace {

constexpr std::string_view kReply =
    "\x1BS\r4,81\r0\r1\r1\n\x1BT\rT\r6\r1\r6\r2\r22\r3\r-1\n\x1BZ\rT\r50\r1\r100\r2\r75\r3\r0\n"
    "\x1BL\r1\r0\r2\r1\n\x1BV\rSYS\r1.01\rNPS\r2.00\rNWC\r3.1415\n\x1BM\r64\n\x1B"
    "E\rNDL\n\x1B"
    "F\rCHUMINCYO\rMINCYO-BOLD\rGOTHIC\rGOTHIC-MEDIUM\rMARUGOTHIC\rKAISHO\n\x1B"
    "D\rD:1\rO:\x03\rF:\x03\rT:\x03\n\x1B"
    "A\r1\n\x1B ";
constexpr std::string_view kDeviceId =
    "MFG:ORLEX;CMD:NDL,NPS,N98,N16,NGL,GL2,NTF,NWC;MDL:ZENTA C210;CLS:PRINTER;DES:ZENTA C210;";

template <class Node, class Visit>
void VisitNodes(Node*& head, Visit visit) {
  for (Node* node = head; node;) {
    Node* next = node->next;
    visit(node, sizeof *node);
    node = next;
  }
}

// Calls `visit` with the address and size of every block of the record.
template <class Visit>
void VisitBlocks(PrnInfoEx& record, Visit visit) {
  for (char* text : {record.modelName, record.manufacturer, record.description})
    if (text) visit(text, std::strlen(text) + 1);
  for (char* text : {record.versionText1, record.versionText2, record.versionText3})
    if (text) visit(text, size_t{7});
  VisitNodes(record.statusList, visit);
  VisitNodes(record.emulationList, visit);
  VisitNodes(record.fontList, visit);
  VisitNodes(record.trayList, visit);
  VisitNodes(record.binList, visit);
  VisitNodes(record.optionList, visit);
}

void Release(PrnInfoEx& record) {
  VisitBlocks(record, [](void* block, size_t) { GlobalFree(block); });
  record = {};
}

uint32_t Parse(PrnInfoEx& record) {
  return SetPrnInfoExFromReadbackCmd(&record, kReply.data(), static_cast<int32_t>(kReply.size()));
}

uint32_t ReadDeviceId(PrnInfoEx& record) {
  return SetModelInfoExFromDeviceID(&record, kDeviceId.data(),
                                    static_cast<uint32_t>(kDeviceId.size()));
}

// As many zero-filled allocations and releases as the record holds blocks, and one copy of the
// input.
struct Floor {
  explicit Floor(PrnInfoEx& record, std::string_view bytes) : input(bytes) {
    VisitBlocks(record, [this](void*, size_t size) { sizes.push_back(uint32_t(size)); });
    blocks.resize(sizes.size());
    copy.resize(bytes.size());
  }
  void operator()() {
    std::memcpy(copy.data(), input.data(), input.size());
    for (size_t i = 0; i < sizes.size(); ++i)
      blocks[i] = GlobalAlloc(GPTR, sizes[i]);
    bench::Use(copy);
    for (void* block : blocks)
      GlobalFree(block);
  }
  std::string_view input;
  std::vector<uint32_t> sizes;
  std::vector<void*> blocks;
  std::string copy;
};

}  // namespace

void bench::BenchRecords() {
  PrnInfoEx record{};
  PrnInfo flat{};
  Parse(record);
  const Floor replyFloor(record, kReply);
  Header("Records");
  std::printf("(a reply of %zu bytes, %zu blocks)\n", kReply.size(), replyFloor.sizes.size());
  Row(
      "reply, repeated into one record", [&] { Parse(record); }, replyFloor, 1.0);
  Release(record);
  Row(
      "reply, into a fresh record and release",
      [&] {
        Parse(record);
        Release(record);
      },
      replyFloor, 1.5);
  Row(
      "reply, into the flat record",
      [&] { SetPrnInfoFromReadbackCmd(&flat, kReply.data(), static_cast<int32_t>(kReply.size())); },
      replyFloor, 1.0);

  ReadDeviceId(record);
  const Floor idFloor(record, kDeviceId);
  std::printf("(a Device ID of %zu bytes, %zu blocks)\n", kDeviceId.size(), idFloor.sizes.size());
  Row(
      "Device ID, repeated into one record", [&] { ReadDeviceId(record); }, idFloor, 2.0);
  Release(record);
  Row(
      "Device ID, into the flat record",
      [&] {
        SetModelInfoFromDeviceID(&flat, kDeviceId.data(), static_cast<uint32_t>(kDeviceId.size()));
      },
      idFloor, 2.0);

  char query[42];
  char copy[42];
  Row(
      "query for every group",
      [&] {
        uint32_t size = sizeof query;
        CreateQueryCommand(~0u, query, &size);
      },
      [&] {
        std::memcpy(copy, query, sizeof copy);
        Use(copy);
      },
      20.0);

  StatusNode node{nullptr, sizeof node, 102, {}};
  record.statusList = &node;
  flat.statusCode = 102;
  StatusRow row{};
  StatusRow rowCopy{};
  const auto copyRow = [&] {
    std::memcpy(&rowCopy, &row, sizeof row);
    Use(rowCopy);
  };
  Row(
      "status row of the flat record, last row", [&] { PatGetPrinterStatus(&flat, &row); }, copyRow,
      60.0);
  Row(
      "status row of the list record, last row", [&] { PatGetPrinterStatus_Ex(&record, &row); },
      copyRow, 60.0);
}
