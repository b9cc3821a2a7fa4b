// Records as text, so that a test row can say in one line what a record should hold.
#pragma once

#include <string>

#include "stmdata/records.h"

namespace test {

// Every field that is not zero, lists in order: "status[4 5] online tray=4 trays[3:7:50]". A count
// that differs from its chain's length stands in parentheses: "trays(0)[0:0:0]". A record
// that tells its own size is "sized"; a node that tells a wrong one is marked.
inline std::string Describe(const PrnInfoEx& record) {
  std::string out;
  const auto word = [&out](const std::string& text) {
    if (!out.empty()) out += ' ';
    out += text;
  };
  const auto number = [&word](const char* name, uint32_t value) {
    if (value != 0) word(std::string(name) + '=' + std::to_string(value));
  };
  const auto flag = [&word](const char* name, uint8_t value) {
    if (value != 0) word(value == 1 ? name : std::string(name) + '=' + std::to_string(value));
  };
  const auto text = [&word](const char* name, const char* value) {
    if (value) word(std::string(name) + "='" + value + '\'');
  };
  const auto list = [&word](const char* name, uint32_t count, const auto* head, auto print) {
    std::string items;
    uint32_t length = 0;
    for (; head; head = head->next, ++length) {
      if (length > 0) items += ' ';
      items += print(*head);
      if (head->nodeSize != sizeof *head) items += "!size";
    }
    if (length == 0 && count == 0) return;
    const std::string told = count == length ? "" : '(' + std::to_string(count) + ')';
    word(name + told + '[' + items + ']');
  };
  const auto join = [](auto... parts) {
    std::string joined;
    ((joined += (joined.empty() ? "" : ":") + std::to_string(parts)), ...);
    return joined;
  };

  number("tag", record.recordTag);
  if (record.structSize == sizeof record)
    word("sized");
  else
    number("size", record.structSize);
  list("status", record.statusCount, record.statusList,
       [&](auto& node) { return join(node.code); });
  text("model", record.modelName);
  text("maker", record.manufacturer);
  text("description", record.description);
  text("version1", record.versionText1);
  text("version2", record.versionText2);
  text("version3", record.versionText3);
  number("number", record.modelInfoNumber);
  flag("offline", record.offline);
  number("code", record.modelCode);
  flag("online", record.online);
  flag("error", record.hasError);
  flag("printing", record.printing);
  flag("silent", record.noResponse);
  number("language", record.emulationCode);
  list("languages", record.emulationCount, record.emulationList,
       [&](auto& node) { return join(node.emulationCode); });
  list("fonts", record.fontCount, record.fontList, [&](auto& node) { return join(node.fontCode); });
  number("tray", record.currentTray);
  list("trays", record.trayCount, record.trayList,
       [&](auto& node) { return join(node.trayId, node.paperCode, node.paperLevel); });
  number("bin", record.currentBin);
  list("bins", record.binCount, record.binList,
       [&](auto& node) { return join(node.binId, node.binState); });
  list("options", record.optionCount, record.optionList,
       [&](auto& node) { return join(node.optionCode, node.optionValue); });
  return out;
}

}  // namespace test
