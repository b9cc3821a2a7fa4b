// Pieces that several JSON documents share. stmon.schema.json is the contract; whoever changes a
// field changes it there as well.
#pragma once

#include <optional>
#include <string>

#include "nlohmann/json.hpp"
#include "snapshot/snapshot.h"

namespace stmon {

using Json = nlohmann::ordered_json;  // keys stay in the order in which they are written

// How every document begins. The number grows when a field changes its meaning or goes; fields that
// come do not count.
inline Json NewDocument(const char* type) {
  return {{"schema", 1}, {"type", type}};
}

template <class Value>
Json OrNull(const std::optional<Value>& value) {
  return value ? Json(*value) : Json();
}

// Bytes of which nobody knows the code page; none are unknown.
Json BytesOrNull(const std::string& bytes);

inline Json TextsJson(const Texts& texts) {
  return {{"short", texts.brief}, {"detail", texts.detail}};
}

// What is the matter, without its place among the others.
Json FindingJson(const Condition& condition, const Language& language);
Json TrayJson(const Tray& tray);
Json BinJson(const Bin& bin);
Json OptionJson(const Option& option);
Json LanguageJson(uint32_t code);

// Query and reply, request by request and block by block; bytes as "1B 54".
Json RawJson(const Snapshot& snapshot);

}  // namespace stmon
