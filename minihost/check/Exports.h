// The symbols that a module offers to others, read from its file.

#pragma once

#include <string>
#include <vector>

namespace minihost {

// The names that an ELF file of this machine's kind defines for others, in the file's order; what a
// sanitizer or the linker itself puts there is left out. Throws std::runtime_error for a file that
// cannot be read or is none.
std::vector<std::string> exported_symbols(const std::string& path);

} // namespace minihost
