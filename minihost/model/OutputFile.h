// Output files, written whole or not at all.

#pragma once

#include "minihost/model/SceneError.h"

#include <string>
#include <string_view>

namespace minihost {

// Puts `content` at `path`: under another name beside it first, then in its place, with the mode of
// the file that was there. A link is followed; what is no regular file (a pipe, a terminal) is
// written straight on. Throws OutputError, with the old file untouched and nothing left behind.
void write_file(const std::string& path, std::string_view content);

} // namespace minihost
