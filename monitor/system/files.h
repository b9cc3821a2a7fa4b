// Files and folders by their names in UTF-8, on both systems.
#pragma once

#include <string>
#include <string_view>

namespace stmon {

// Reads at most `most` + 1 bytes, so that a caller can tell a file that is too long. The name '-'
// is standard input. Result: empty, or why it could not be read.
std::string ReadWholeFile(const std::string& name, size_t most, std::string& bytes);

// False for a folder, a device, a pipe, and for what is not there.
bool IsPlainFile(const std::string& name);

// Writes a file, beside its final place first and then moved there, so that a reader never sees
// half of it. Result: empty, or why it could not be written.
std::string WriteWholeFile(const std::string& name, std::string_view bytes);

// Makes a folder, or finds it there. Result: empty, or why it is not.
std::string MakeFolder(const std::string& name);

}  // namespace stmon
