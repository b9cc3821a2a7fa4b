// The list-based record as its owner keeps it: zero-filled at first, its strings and lists released
// at the end.
#pragma once

#include "stmdata/stmdata.h"

namespace stmon {

struct Record : PrnInfoEx {
  Record() : PrnInfoEx{} {
    recordTag = PrnInfoExTag;
    structSize = PrnInfoExSize;
  }
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  ~Record() {
    for (char* text :
         {modelName, manufacturer, description, versionText1, versionText2, versionText3})
      GlobalFree(text);
    FreeNodes(statusList);
    FreeNodes(emulationList);
    FreeNodes(fontList);
    FreeNodes(trayList);
    FreeNodes(binList);
    FreeNodes(optionList);
  }

 private:
  template <class Node>
  static void FreeNodes(Node* head) {
    while (head) {
      Node* next = head->next;
      GlobalFree(head);
      head = next;
    }
  }
};

}  // namespace stmon
