#include "words/own_texts.h"

#include <optional>

#include "words/phrases.h"

namespace stmon {
namespace {

struct OwnText {
  uint32_t code;
  std::optional<Phrase> brief;  // without one: ready
  Phrase detail;
  Phrase detailDuplex;
};

constexpr OwnText kOwnTexts[] = {
    // code brief        detail  the same with a duplex unit
    {4, {}, Phrase::TonerNearlyEmpty, Phrase::TonerNearlyEmpty},                   // any toner
    {34, Phrase::OutputFull, Phrase::OutputFullDetail, Phrase::OutputFullDetail},  //
    {82, {}, Phrase::OutputNearlyFull, Phrase::OutputNearlyFull},                  //
    {87, {}, Phrase::UnitR3, Phrase::UnitR3},                                      //
    {89, {}, Phrase::RearCoverOpen, Phrase::RearCoverOpenDuplex},                  //
    {90, {}, Phrase::RearCoverOpen, Phrase::RearCoverOpen},                        //
};

}  // namespace

void FillTexts(Texts& texts, uint32_t code, bool duplex, const Language& language) {
  for (const OwnText& row : kOwnTexts) {
    if (row.code != code) continue;
    if (texts.brief.empty()) {
      texts.brief = row.brief ? Say(*row.brief, language)
                              : AskTexts(StatusSample(0, false).list, language).brief;
    }
    if (texts.detail.empty()) texts.detail = Say(duplex ? row.detailDuplex : row.detail, language);
  }
}

}  // namespace stmon
