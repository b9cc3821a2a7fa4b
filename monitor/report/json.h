// What several JSON documents share.
#pragma once

#include "nlohmann/json.hpp"
#include "snapshot/snapshot.h"

namespace stmon {

using Json = nlohmann::ordered_json;  // keys stay in the order in which they are written

inline Json TextsJson(const Texts& texts) {
  return {{"short", texts.brief}, {"detail", texts.detail}};
}

// Query and reply, request by request and block by block; bytes as "1B 54".
Json RawJson(const Snapshot& snapshot);

}  // namespace stmon
