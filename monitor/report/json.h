// What several JSON documents share.
#pragma once

#include "nlohmann/json.hpp"
#include "words/texts.h"

namespace stmon {

using Json = nlohmann::ordered_json;  // keys stay in the order in which they are written

inline Json TextsJson(const Texts& texts) {
  return {{"short", texts.brief}, {"detail", texts.detail}};
}

}  // namespace stmon
