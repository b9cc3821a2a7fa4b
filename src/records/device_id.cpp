// The printer's IEEE 1284 Device ID.
#include <cstring>

#include "names/emulation_codes.h"
#include "names/model_names.h"
#include "names/name_index.h"
#include "records/item_list.h"
#include "records/record.h"
#include "records/record_text.h"
#include "records/scanners.h"
#include "stmdata/stmdata.h"

namespace stm {
namespace {

constexpr NameCode kServedModels[] = {
    kServedModel, {{}, ModelUnknown},  // closing row: another printer
};

constexpr char kFieldEnd = ';';
constexpr uint32_t kKeyLength = 4;
constexpr uint32_t kMostOfLanguage = 7;  // with its comma

// The value of a field: what follows the key, with the field's ";".
using Value = Input;

void DropLast(Value& value) {
  if (Left(value) > 0) --value.end;
}

bool EndsField(const Value& value) {
  return Left(value) > 0 && value.end[-1] == kFieldEnd;
}

std::string_view TextOf(const Value& value) {
  return {value.position, Left(value)};
}

// A printer whose name cannot be kept counts as unknown.
template <const auto& kModels>
void ReplaceNamedModel(Filling to, char*& name, Value value) {
  DropLast(value);
  ReplaceText(name, TextOf(value), to.room);
  to.record->modelCode = static_cast<uint8_t>(name ? LookupNameCode<kModels>(name) : ModelUnknown);
}

void ReadManufacturer(Filling to, Value value) {
  if (EndsField(value)) DropLast(value);
  ReplaceText(to.record->manufacturer, TextOf(value), to.room);
}

// A code that has no comma within its seven bytes, as the last one of a string that ends early,
// loses its last character; what follows is the next code.
void ReadLanguages(Filling to, Value value) {
  to.record->emulationCount = 0;
  ListWriter<EmulationNode> languages = BeginList(to.record->emulationList, to.room);
  while (Left(value) > 0) {
    Field code = ScanField(value, kMostOfLanguage, ',', kFieldEnd);
    if (code.delimiter == '\0') code.text.remove_suffix(1);
    EmulationNode* language = NextItem(languages);
    if (!language) continue;
    language->emulationCode = static_cast<uint16_t>(LookupNameCode<kEmulationCodeTable>(code.text));
    ++to.record->emulationCount;
  }
  EndList(languages);
}

void ReadModel(Filling to, Value value) {
  ReplaceNamedModel<kServedModels>(to, to.record->modelName, value);
}

void ReadDescription(Filling to, Value value) {
  ReplaceNamedModel<kModelNameTable>(to, to.record->description, value);
}

struct KeyRow {
  char key[kKeyLength + 1];
  void (*read)(Filling to, Value value);
};

constexpr KeyRow kKeys[] = {
    {"MFG:", ReadManufacturer},
    {"CMD:", ReadLanguages},
    {"MDL:", ReadModel},
    {"DES:", ReadDescription},
};

// Fields are cut at 255 bytes; the rest of one is read as the next.
uint32_t FieldLength(const Input& input) {
  const uint32_t most = Left(input) < 255 ? Left(input) : 255;
  const auto* end = static_cast<const char*>(std::memchr(input.position, kFieldEnd, most));
  return end ? static_cast<uint32_t>(end + 1 - input.position) : most;
}

void WalkDeviceId(Input rest, Filling to) {
  while (Left(rest) > 0) {
    const Input field{rest.position, rest.position + FieldLength(rest)};
    Skip(rest, Left(field));
    for (const KeyRow& row : kKeys) {
      if (Left(field) < kKeyLength || std::memcmp(field.position, row.key, kKeyLength) != 0)
        continue;
      row.read(to, {field.position + kKeyLength, field.end});
      break;
    }
  }
}

// The string ends at its length or at its first zero byte, whatever comes first.
Input DeviceIdOf(const char* text, uint32_t length) {
  const auto* zero = static_cast<const char*>(std::memchr(text, '\0', length));
  return {text, zero ? zero : text + length};
}

// A missing string is an empty one.
void ReadDeviceId(Filling to, const char* deviceId, uint32_t length) {
  to.record->recordTag = PrnInfoExTag;
  to.record->structSize = PrnInfoExSize;
  if (deviceId) WalkDeviceId(DeviceIdOf(deviceId, length), to);
}

}  // namespace
}  // namespace stm

uint32_t STM_CALL SetModelInfoExFromDeviceID(ModelInfoEx* record, const char* deviceId,
                                             uint32_t length) {
  if (!record) return 0;
  stm::ReadDeviceId({record, nullptr}, deviceId, length);
  return 1;
}

uint32_t STM_CALL SetModelInfoFromDeviceID(PrnInfo* record, const char* deviceId, uint32_t length) {
  if (!record) return 0;
  stm::TemporaryRecord* temporary = stm::NewPrnInfoEx();
  if (!temporary) return 0;
  stm::ReadDeviceId({&temporary->record, &temporary->room}, deviceId, length);
  stm::ConvertToPrnInfo(temporary->record, record, GroupDeviceId);
  stm::FreePrnInfoEx(temporary);
  return 1;
}
