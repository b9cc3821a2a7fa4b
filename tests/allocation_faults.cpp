#include "allocation_faults.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include "stmdata/stmdata.h"

namespace {

uint32_t untilFault = 0;  // allocations up to the failing one, 0: none fails
bool faultsStay = false;
bool failed = false;
std::atomic<int32_t> liveBlocks = 0;  // threads allocate at once

bool MustFail() {
  if (untilFault == 0 || --untilFault > 0) return false;
  if (faultsStay) untilFault = 1;
  failed = true;
  return true;
}

template <class Allocate>
HGLOBAL Counted(Allocate allocate) {
  if (MustFail()) return nullptr;
  HGLOBAL block = allocate();
  liveBlocks += block != nullptr;
  return block;
}

}  // namespace

#ifdef _WIN32

namespace {

HGLOBAL WINAPI CountedAlloc(UINT flags, SIZE_T bytes) {
  return Counted([=] {
    return HeapAlloc(GetProcessHeap(), flags & GMEM_ZEROINIT ? HEAP_ZERO_MEMORY : 0, bytes);
  });
}

HGLOBAL WINAPI CountedFree(HGLOBAL block) {
  liveBlocks -= block != nullptr;
  HeapFree(GetProcessHeap(), 0, block);
  return nullptr;
}

// Writes the address of `replacement` over the module's import of the function.
void Replace(HMODULE module, const char* function, const void* replacement) {
  auto* base = reinterpret_cast<char*>(module);
  const auto* dos = reinterpret_cast<IMAGE_DOS_HEADER*>(base);
  const auto* headers = reinterpret_cast<IMAGE_NT_HEADERS*>(base + dos->e_lfanew);
  const auto& folder = headers->OptionalHeader.DataDirectory[IMAGE_DIRECTORY_ENTRY_IMPORT];
  const auto* row = reinterpret_cast<IMAGE_IMPORT_DESCRIPTOR*>(base + folder.VirtualAddress);
  for (; row->Name != 0; ++row) {
    const auto* name = reinterpret_cast<IMAGE_THUNK_DATA*>(base + row->OriginalFirstThunk);
    auto* slot = reinterpret_cast<IMAGE_THUNK_DATA*>(base + row->FirstThunk);
    for (; name->u1.AddressOfData != 0; ++name, ++slot) {
      if (IMAGE_SNAP_BY_ORDINAL(name->u1.Ordinal)) continue;
      const auto* import = reinterpret_cast<IMAGE_IMPORT_BY_NAME*>(base + name->u1.AddressOfData);
      if (std::strcmp(reinterpret_cast<const char*>(import->Name), function) != 0) continue;
      DWORD protection;
      VirtualProtect(slot, sizeof *slot, PAGE_READWRITE, &protection);
      slot->u1.Function = reinterpret_cast<ULONG_PTR>(replacement);
      VirtualProtect(slot, sizeof *slot, protection, &protection);
    }
  }
}

const bool replaced = [] {
  for (HMODULE module : {GetModuleHandleA("stmdata.dll"), GetModuleHandleA(nullptr)}) {
    Replace(module, "GlobalAlloc", reinterpret_cast<const void*>(CountedAlloc));
    Replace(module, "GlobalFree", reinterpret_cast<const void*>(CountedFree));
  }
  return true;
}();

}  // namespace

#else

// The program's own definitions come before the library's, also for the library.
extern "C" {

HGLOBAL STM_CALL GlobalAlloc(UINT, size_t bytes) {
  return Counted([=] { return std::calloc(bytes ? bytes : 1, 1); });
}

HGLOBAL STM_CALL GlobalFree(HGLOBAL block) {
  liveBlocks -= block != nullptr;
  std::free(block);
  return nullptr;
}
}

#endif

void test::FailAllocation(uint32_t number, Faults faults) {
  untilFault = number;
  faultsStay = faults == Faults::AllFromThere;
  failed = false;
}

bool test::EndFaults() {
  untilFault = 0;
  return failed;
}

int32_t test::LiveBlocks() {
  return liveBlocks;
}
