// Picture, icon and words of every status, as files and as one page that needs nothing else.
#pragma once

#include <string>

namespace stmon {

// Writes into a folder, which is made when it is not there; `progress` is called with a line for
// people now and then. Result: empty, or what could not be written.
std::string WriteGallery(const std::string& folder, void (*progress)(const std::string& line));

}  // namespace stmon
