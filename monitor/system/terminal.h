// What the terminal behind standard output can show.
#pragma once

namespace stmon {

struct Terminal {
  int columns = 0;          // 0: no terminal, or one without colours
  bool trueColour = false;  // 24 bits
};
Terminal OutputTerminal();

}  // namespace stmon
