#include "report/gallery.h"

#include <map>

#include "picture/picture.h"
#include "report/catalogue.h"
#include "report/json.h"
#include "system/files.h"
#include "words/own_texts.h"
#include "words/phrases.h"

namespace stmon {
namespace {

struct Build {
  const char* name;  // of the files, after the status code
  bool duplex;
  uint32_t trays;  // 1 to 3
};

constexpr Build kBuilds[] = {
    //  name                duplex trays
    {"", false, 1},              // the printer alone
    {"-tray2", false, 2},        //
    {"-tray3", false, 3},        //
    {"-duplex", true, 1},        //
    {"-duplex-tray2", true, 2},  //
    {"-duplex-tray3", true, 3},  // all there is
};

std::string Base64(const std::string& bytes) {
  constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  for (size_t at = 0; at < bytes.size(); at += 3) {
    uint32_t bits = 0;
    for (size_t i = 0; i < 3; ++i)
      bits = bits << 8 | (at + i < bytes.size() ? static_cast<uint8_t>(bytes[at + i]) : 0u);
    for (size_t i = 0; i < 4; ++i)
      text += at + i <= bytes.size() ? kDigits[bits >> (18 - 6 * i) & 63] : '=';
  }
  return text;
}

// What has been written so far. Many statuses share a picture; the page carries each once.
struct Gallery {
  std::string folder;
  std::map<std::string, size_t> numbers;  // of the images by their PNG
  Json images = Json::array();
  std::string trouble;  // the first; nothing is written after it
};

void Write(Gallery& gallery, const std::string& name, const std::string& bytes) {
  if (!gallery.trouble.empty()) return;
  const std::string file = gallery.folder + "/" + name;
  const std::string trouble = WriteWholeFile(file, bytes);
  if (!trouble.empty()) gallery.trouble = file + ": " + trouble;
}

// Result: the image's number in the page.
size_t AddImage(Gallery& gallery, const std::string& name, const Image& image) {
  const std::string png = EncodePng(image);
  Write(gallery, name + ".png", png);
  const auto [place, added] = gallery.numbers.try_emplace(png, gallery.images.size());
  if (added) gallery.images.push_back("data:image/png;base64," + Base64(png));
  return place->second;
}

std::string FileStem(uint32_t code) {
  const std::string digits = std::to_string(code);
  return std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
}

// One file without links to others, so that it can be sent by mail or attached to a report.
constexpr const char* kPageHead = R"(<!doctype html>
<html><head><meta charset="utf-8"><title>Printer states</title>
<meta name="viewport" content="width=device-width, initial-scale=1">
<style>
body { font: 15px/1.45 system-ui, sans-serif; margin: 1.5rem; color: #222; background: #f4f4f2; }
header { display: flex; flex-wrap: wrap; gap: 1rem 2rem; align-items: baseline; margin-bottom: 1rem; }
h1 { font-size: 1.4rem; margin: 0; }
main { display: grid; gap: 1rem; grid-template-columns: repeat(auto-fill, minmax(340px, 1fr)); }
article { background: #fff; border: 1px solid #ddd; border-radius: 6px; padding: 10px; }
article > img { display: block; width: 320px; height: 200px; image-rendering: pixelated; }
h2 { font-size: 1rem; margin: .5rem 0 .2rem; display: flex; gap: .5rem; align-items: center; }
p { margin: .2rem 0; white-space: pre-line; }
small { color: #666; }
</style></head><body>
<header><h1 id="title"></h1>
<label><span id="language-label"></span> <select id="language"></select></label>
<label><input type="checkbox" id="duplex"> <span id="duplex-label"></span></label>
<label><span id="trays-label"></span> <select id="trays"><option>1<option>2<option>3</select></label>
</header>
<main id="cards"></main>
<script>
const data = )";

constexpr const char* kPageTail = R"(;
const at = id => document.getElementById(id);
for (const { name } of data.languages) at("language").add(new Option(name));
function show() {
  const duplex = at("duplex").checked, build = (duplex ? 3 : 0) + at("trays").selectedIndex;
  const language = data.languages[at("language").selectedIndex];
  document.documentElement.lang = language.tag;
  document.title = language.labels.title;
  for (const [id, text] of Object.entries(language.labels)) at(id).textContent = text;
  at("cards").replaceChildren(...data.states.map(state => {
    const [brief, plain, open] = state.texts[language.code];
    const make = (tag, text) => Object.assign(document.createElement(tag), { textContent: text });
    const image = (number, alt) => Object.assign(new Image(), { src: data.images[number], alt });
    const title = make("h2", "");
    if (state.icon !== null) title.append(image(state.icon, ""));
    title.append(brief);
    const card = make("article", "");
    card.append(image(state.pictures[build], brief), title, make("p", duplex ? open : plain),
                make("small", `${language.code_of.replace("#", state.code)} \u00b7 ${state.reason}`));
    return card;
  }));
}
for (const id of ["language", "duplex", "trays"]) at(id).addEventListener("change", show);
show();
</script></body></html>
)";

// The labels by the ids of the elements that show them.
Json LanguageJson(const Language& language) {
  const std::string_view tags = language.locales;  // the first is its own
  return {{"code", language.code},
          {"name", language.name},
          {"tag", tags.substr(0, tags.find(' '))},
          {"labels",
           {{"title", Say(Phrase::GalleryTitle, language)},
            {"language-label", Say(Phrase::GalleryLanguage, language)},
            {"duplex-label", Say(Phrase::OptionDuplex, language)},
            {"trays-label", Say(Phrase::Trays, language)}}},
          {"code_of", Say(Phrase::CodeNumber, language, {"#"})}};
}

Json StateTexts(const CatalogueEntry& entry) {
  Json texts;
  for (const StatusWords& words : entry.words) {
    Texts plain = words.list;
    Texts duplex = words.listDuplex;
    FillTexts(plain, entry.code, false, *words.language);
    FillTexts(duplex, entry.code, true, *words.language);
    texts[words.language->code] = {plain.brief, plain.detail, duplex.detail};
  }
  return texts;
}

Json StateJson(Gallery& gallery, const CatalogueEntry& entry) {
  Json state{{"code", entry.code}, {"reason", Keyword(*entry.reason)}, {"icon", nullptr}};
  for (const Build& build : kBuilds) {
    const StatusSample sample(entry.code, build.duplex, build.trays);
    state["pictures"].push_back(AddImage(gallery, "pictures/" + FileStem(entry.code) + build.name,
                                         DrawPicture(sample.list)));
  }
  if (const Image icon = DrawIcon(entry.icon); !icon.pixels.empty())
    state["icon"] = AddImage(gallery, "icons/" + entry.icon, icon);
  state["texts"] = StateTexts(entry);
  return state;
}

}  // namespace

std::string WriteGallery(const std::string& folder, void (*progress)(const std::string& line)) {
  for (const char* part : {"", "/pictures", "/icons"}) {
    const std::string trouble = MakeFolder(folder + part);
    if (!trouble.empty()) return folder + part + ": " + trouble;
  }
  Gallery gallery{folder, {}, Json::array(), ""};
  Json page;
  for (const Language& language : kLanguages)
    page["languages"].push_back(LanguageJson(language));
  const auto catalogue = AskCatalogue(nullptr);
  size_t done = 0;
  for (const CatalogueEntry& entry : catalogue) {
    page["states"].push_back(StateJson(gallery, entry));
    if (!gallery.trouble.empty()) return gallery.trouble;
    if (++done % 10 == 0 || done == catalogue.size())
      progress(std::to_string(done) + " of " + std::to_string(catalogue.size()) + " states");
  }
  page["images"] = std::move(gallery.images);
  Write(gallery, "index.html", kPageHead + page.dump() + kPageTail);
  return gallery.trouble;
}

}  // namespace stmon
