// The symbols that a module exports.

#pragma once

#include <string>
#include <vector>

namespace minihost {

// In the order of the ELF file, without those of linker and sanitizers. Throws std::runtime_error
// for a file that is not readable or not a module of this machine.
std::vector<std::string> exported_symbols(const std::string& path);

} // namespace minihost
