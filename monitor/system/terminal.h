// What the terminal behind standard output can show.
#pragma once

namespace stmon {

struct Terminal {
  int columns = 0;          // 0: no terminal
  bool colours = false;     // false: its user or its kind wants none
  bool trueColour = false;  // 24 bits
};
Terminal OutputTerminal();

}  // namespace stmon
