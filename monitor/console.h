// Files, standard streams and arguments as UTF-8, on both systems.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace stmon {

// Makes the standard streams carry bytes as they are, and a console show UTF-8. The console's own
// code page is put back when the program ends.
void PrepareStreams();

// The arguments as UTF-8.
std::vector<std::string> Arguments(int count, char** values);

// Reads at most `most` + 1 bytes, so that a caller can tell a file that is too long. The name '-'
// is standard input. Result: empty, or why it could not be read.
std::string ReadWholeFile(const std::string& name, size_t most, std::string& bytes);

// Writes a file, beside its final place first and then moved there, so that a reader never sees
// half of it. Result: empty, or why it could not be written.
std::string WriteWholeFile(const std::string& name, std::string_view bytes);

// Makes a folder, or finds it there. Result: empty, or why it is not.
std::string MakeFolder(const std::string& name);

// What the terminal behind standard output can show.
struct Terminal {
  int columns = 0;           // 0: no terminal, or one without colours
  bool true_colour = false;  // 24 bits
};
Terminal OutputTerminal();

// Writes to standard output or standard error and flushes.
void Print(std::string_view text);
void Complain(std::string_view text);

}  // namespace stmon
