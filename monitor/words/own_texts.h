// Words for the statuses that the library explains in Japanese alone.
#pragma once

#include "words/texts.h"

namespace stmon {

// Fills what is empty of a status's texts. `duplex`: the printer has a duplex unit.
void FillTexts(Texts& texts, uint32_t code, bool duplex, const Language& language);

}  // namespace stmon
