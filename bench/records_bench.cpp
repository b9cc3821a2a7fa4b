// Replies, Device IDs, the query and the status row.
#include <cstring>
#include <string_view>

#include "bench.h"
#include "sample.h"
#include "stmdata/stmdata.h"

namespace {

constexpr std::string_view kReply =
    "\033S\r4,81\r0\r1\r1\n\033T\rT\r6\r1\r6\r2\r22\r3\r-1\n\033Z\rT\r50\r1\r100\r2\r75\r3\r0\n"
    "\033L\r1\r0\r2\r1\n\033V\rSYS\r1.01\rNPS\r2.00\rNWC\r3."
    "1415\n\033M\r64\n\033E\rNDL\n\033F\rCHUMINCYO\rMINCYO-BOLD\rGOTHIC\rGOTHIC-"
    "MEDIUM\rMARUGOTHIC\rKAISHO\n\033D\rD:1\rO:\x03\rF:\x03\rT:\x03\n\033A\r1\n\033 ";
constexpr std::string_view kDeviceId =
    "MFG:ORLEX;CMD:NDL,NPS,N98,N16,NGL,GL2,NTF,NWC;MDL:ZENTA C210;CLS:PRINTER;DES:ZENTA C210;";

using Floor = bench::RecordFloor;

uint32_t ReadDeviceId(PrnInfoEx& record) {
  return SetModelInfoExFromDeviceID(&record, kDeviceId.data(),
                                    static_cast<uint32_t>(kDeviceId.size()));
}

}  // namespace

void bench::BenchRecords() {
  PrnInfoEx record{};
  PrnInfo flat{};
  Parse(record, kReply);
  const Floor replyFloor(record, kReply);
  Header("Records");
  Note("(a reply of %zu bytes, %zu blocks)\n", kReply.size(), replyFloor.sizes.size());
  Row(
      "reply, repeated into one record", [&] { Parse(record, kReply); }, replyFloor, 1.0);
  ReleasePrnInfoEx(&record);
  Row(
      "reply, into a fresh record and release",
      [&] {
        Parse(record, kReply);
        ReleasePrnInfoEx(&record);
      },
      replyFloor, 1.5);
  Row(
      "reply, into the flat record", [&] { Parse(flat, kReply); }, replyFloor, 1.0);

  ReadDeviceId(record);
  const Floor idFloor(record, kDeviceId);
  Note("(a Device ID of %zu bytes, %zu blocks)\n", kDeviceId.size(), idFloor.sizes.size());
  Row(
      "Device ID, repeated into one record", [&] { ReadDeviceId(record); }, idFloor, 2.0);
  ReleasePrnInfoEx(&record);
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
