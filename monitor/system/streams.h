// Arguments and standard streams as UTF-8, on both systems.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace stmon {

// The arguments as UTF-8.
std::vector<std::string> Arguments(int count, char** values);

// Makes the standard streams carry bytes as they are, and a console show UTF-8. The console's own
// code page is put back when the program ends. A stream that is closed stays unusable, so that no
// socket takes its number, and a reader that goes away ends no process: both are told by
// OutputTrouble().
void PrepareStreams();

// Writes to standard output or standard error and flushes: whoever reads a pipe wants each line as
// it comes.
void Print(std::string_view text);
void Complain(std::string_view text);

// Why something could not be printed; empty while all could.
std::string OutputTrouble();

}  // namespace stmon
