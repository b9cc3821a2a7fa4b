#include "picture/latest_list.h"

#include "platform/windows_api.h"

namespace stm {
namespace {

SRWLOCK lock = SRWLOCK_INIT;
PartList latest{};

}  // namespace

void StoreLatestList(const PartList& list) {
  AcquireSRWLockExclusive(&lock);
  latest = list;
  ReleaseSRWLockExclusive(&lock);
}

PartList LatestList() {
  AcquireSRWLockExclusive(&lock);
  const PartList list = latest;
  ReleaseSRWLockExclusive(&lock);
  return list;
}

}  // namespace stm
