// Output files that are written completely or not at all.

#pragma once

#include "minihost/model/Errors.h"

#include <string>
#include <string_view>

namespace minihost {

// A temporary file beside the real one, which commit() renames to it and gives the mode of the file
// that it replaces. Links are followed; anything but a regular file (a pipe, a terminal) is written
// directly. Every function throws OutputError. Without commit() nothing changes.
class OutputFile {
  public:
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view content); // buffered
    void commit();

  private:
    [[noreturn]] void fail() const;
    void flush();

    std::string _path;      // for messages
    std::string _resolved;  // after links
    std::string _temporary; // empty for a file that is written directly
    std::string _buffer;
    unsigned _mode = 0;
    int _file = -1;
};

// In lower case and with its dot; empty for a name without one.
std::string extension_of(const std::string& path);

void write_file(const std::string& path, std::string_view content);

} // namespace minihost
