#include "system/system_text.h"

#include <cerrno>
#include <cstring>

namespace stmon {

// The usual errors in words of our own: the system's differ from one to the next, and may come in
// another language.
std::string SystemText(int error) {
  switch (error) {
    case ENOENT:
      return "no such file";
    case EACCES:
    case EPERM:
      return "no permission";
    case EISDIR:
      return "a folder, not a file";
    case ENOSPC:
      return "no space left";
    case EBADF:
      return "it is closed";
    case EPIPE:
      return "nobody reads it";
    case 0:  // streams may fail without a word from the system
      return "input or output error";
    default:
      return std::strerror(error);
  }
}

}  // namespace stmon
