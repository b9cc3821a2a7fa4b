// The resources of the library, read from the image that the resource compiler wrote.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>
#include <span>

#include "platform/linux/environment_language.h"
#include "platform/windows_api.h"

extern "C" {
extern const unsigned char stmResourceImage[];
extern const unsigned char stmResourceImageEnd[];
}

namespace stm {
namespace {

// A type or a name: a 16-bit id, or a string in capitals.
struct Label {
  const unsigned char* text;  // UTF-16, terminated; null for an id
  uint16_t id;                // 0 for a string
};

// What a resource is called.
struct Title {
  uint32_t ids;  // of type and name, so that most titles are told apart by one comparison
  const unsigned char* typeText;
  const unsigned char* nameText;
};

struct Entry {
  Title title;
  LANGID language;
  const unsigned char* data;
  uint32_t size;
};

// The entries of a title, one a language, side by side.
struct Group {
  Title title;
  uint32_t first;
  uint32_t count;
};

// Twice what the library holds; the image is the library's own, so a test sees an overflow first.
constexpr uint32_t kMostEntries = 1024;

struct Index {
  Entry entries[kMostEntries];
  Group groups[kMostEntries];
  uint32_t count;
  uint32_t groupCount;
};

template <class Number>
Number Get(const unsigned char* at) {
  Number number;
  std::memcpy(&number, at, sizeof number);
  return number;
}

const unsigned char* Align(const unsigned char* at) {
  return at + (-(at - stmResourceImage) & 3);
}

//   FF FF id:2                 an id
//   'B':2 'M':2 ... 00:2       a string
Label ReadLabel(const unsigned char*& at) {
  if (Get<uint16_t>(at) == 0xFFFF) {
    at += 4;
    return {nullptr, Get<uint16_t>(at - 2)};
  }
  const Label label{at, 0};
  while (Get<uint16_t>(at) != 0)
    at += 2;
  at += 2;
  return label;
}

Title TitleOf(const Label& type, const Label& name) {
  return {uint32_t{type.id} << 16 | name.id, type.text, name.text};
}

//   data size:4 header size:4 type name (to 4) version:4 flags:2 language:2 ... | data (to 4)
const unsigned char* ReadEntry(const unsigned char* at, Entry* entry) {
  const auto dataSize = Get<uint32_t>(at);
  const auto headerSize = Get<uint32_t>(at + 4);
  const unsigned char* cursor = at + 8;
  const Label type = ReadLabel(cursor);
  entry->title = TitleOf(type, ReadLabel(cursor));
  entry->language = Get<LANGID>(Align(cursor) + 6);
  entry->data = at + headerSize;
  entry->size = dataSize;
  return Align(entry->data + dataSize);
}

// Ids, which have no text, come before strings. Any order would do for the look-up.
int CompareTexts(const unsigned char* left, const unsigned char* right) {
  if (left == right) return 0;
  if (!left || !right) return left ? 1 : -1;
  while (Get<uint16_t>(left) == Get<uint16_t>(right) && Get<uint16_t>(left) != 0) {
    left += 2;
    right += 2;
  }
  return Get<uint16_t>(left) - Get<uint16_t>(right);
}

int Compare(const Title& left, const Title& right) {
  if (left.ids != right.ids) return left.ids < right.ids ? -1 : 1;
  const int byType = CompareTexts(left.typeText, right.typeText);
  return byType ? byType : CompareTexts(left.nameText, right.nameText);
}

bool Before(const Entry& left, const Entry& right) {
  const int byTitle = Compare(left.title, right.title);
  return byTitle ? byTitle < 0 : left.language < right.language;
}

void GroupEntries(Index& index) {
  for (uint32_t entry = 0; entry < index.count; ++entry) {
    const Title& title = index.entries[entry].title;
    if (entry == 0 || Compare(title, index.entries[entry - 1].title) != 0)
      index.groups[index.groupCount++] = {title, entry, 0};
    ++index.groups[index.groupCount - 1].count;
  }
}

Index ReadImage() {
  Index made{};
  const unsigned char* at = stmResourceImage;
  while (at < stmResourceImageEnd && made.count < kMostEntries)
    at = ReadEntry(at, &made.entries[made.count++]);
  std::sort(made.entries, made.entries + made.count, Before);
  GroupEntries(made);
  return made;
}

// Made when the library is loaded, before anyone can ask.
const Index imageIndex = ReadImage();

// A caller's type or name as a label; strings longer than any in the image match none.
constexpr size_t kLongestAsked = 64;

struct AskedLabel {
  uint16_t text[kLongestAsked];
  Label label;
};

bool IsId(const char* name) {
  return reinterpret_cast<uintptr_t>(name) <= 0xFFFF;
}

void ReadAsked(const char* name, AskedLabel* asked) {
  asked->label = {nullptr, 0};
  if (IsId(name)) {
    asked->label.id = static_cast<uint16_t>(reinterpret_cast<uintptr_t>(name));
  } else if (name[0] == '#') {
    asked->label.id = static_cast<uint16_t>(std::strtoul(name + 1, nullptr, 10));
  } else {
    size_t length = 0;
    for (; name[length] && length + 1 < kLongestAsked; ++length) {
      const char byte = name[length];
      const bool lower = byte >= 'a' && byte <= 'z';
      asked->text[length] = static_cast<uint8_t>(lower ? byte - 'a' + 'A' : byte);
    }
    asked->text[length] = 0;
    asked->label.text = reinterpret_cast<const unsigned char*>(asked->text);
  }
}

using Languages = std::span<const Entry>;

// The entries of a title, one a language; none when there is no such title.
Languages FindTitle(const Title& title) {
  const Group* end = imageIndex.groups + imageIndex.groupCount;
  const Group* group = std::lower_bound(
      imageIndex.groups, end, title,
      [](const Group& each, const Title& sought) { return Compare(each.title, sought) < 0; });
  if (group == end || Compare(group->title, title) != 0) return {};
  return {imageIndex.entries + group->first, group->count};
}

const Entry* FindOneOf(Languages entries, std::initializer_list<LANGID> languages) {
  for (LANGID language : languages) {
    for (const Entry& entry : entries) {
      if (entry.language == language) return &entry;
    }
  }
  return nullptr;
}

// A caller that asks for no language gets that of the thread's texts, else English, else any. One
// that asks for a language gets that one, else its primary language, else the neutral one.
const Entry* ChooseLanguage(Languages entries, LANGID language) {
  constexpr LANGID kPrimaryMask = 0x3FF;
  const auto primary = static_cast<LANGID>(language & kPrimaryMask);
  if (primary != kNeutral) return FindOneOf(entries, {language, primary, kNeutral});
  const Entry* entry = FindOneOf(entries, {language, ThreadTextLanguage(), kEnglish});
  return entry ? entry : &entries.front();
}

HRSRC FailWith(DWORD systemError) {
  SetLastError(systemError);
  return nullptr;
}

// The entry that a caller's handle stands for; null when it is none of ours.
const Entry* EntryOf(HRSRC resource) {
  const auto offset =
      reinterpret_cast<uintptr_t>(resource) - reinterpret_cast<uintptr_t>(&imageIndex);
  if (offset >= imageIndex.count * sizeof(Entry) || offset % sizeof(Entry) != 0) return nullptr;
  return &imageIndex.entries[offset / sizeof(Entry)];
}

}  // namespace
}  // namespace stm

extern "C" {

HRSRC STM_CALL FindResourceExA(HINSTANCE, const char* type, const char* name, LANGID language) {
  using namespace stm;
  AskedLabel askedType;
  AskedLabel askedName;
  ReadAsked(type, &askedType);
  ReadAsked(name, &askedName);
  const Languages entries = FindTitle(TitleOf(askedType.label, askedName.label));
  if (entries.empty()) return FailWith(ERROR_RESOURCE_NAME_NOT_FOUND);
  const Entry* entry = ChooseLanguage(entries, language);
  if (!entry) return FailWith(ERROR_RESOURCE_LANG_NOT_FOUND);
  return reinterpret_cast<HRSRC>(const_cast<Entry*>(entry));
}

HRSRC STM_CALL FindResourceA(HINSTANCE module, const char* name, const char* type) {
  return FindResourceExA(module, type, name, stm::kNeutral);
}

HGLOBAL STM_CALL LoadResource(HINSTANCE, HRSRC resource) {
  const stm::Entry* entry = stm::EntryOf(resource);
  return entry ? const_cast<unsigned char*>(entry->data) : nullptr;
}

void* STM_CALL LockResource(HGLOBAL data) {
  return data;
}

DWORD STM_CALL SizeofResource(HINSTANCE, HRSRC resource) {
  const stm::Entry* entry = stm::EntryOf(resource);
  return entry ? entry->size : 0;
}
}
