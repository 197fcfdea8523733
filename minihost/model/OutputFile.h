// Output files, written whole or not at all.

#pragma once

#include "minihost/model/SceneError.h"

#include <string>
#include <string_view>

namespace minihost {

// A file that is being written: under another name beside the real one first, then in its place,
// with the mode of the file that was there. A link is followed; what is no regular file (a pipe, a
// terminal) is written straight on. Every function throws OutputError, with the old file untouched;
// unless commit() is reached nothing is left behind.
class OutputFile {
  public:
    explicit OutputFile(const std::string& path);
    ~OutputFile();
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;

    void write(std::string_view content); // may wait in memory for a while
    void commit();

  private:
    [[noreturn]] void fail() const;
    void flush();

    std::string _path;      // as the messages name it
    std::string _target;    // where links end
    std::string _temporary; // empty for what is written straight on
    std::string _waiting;
    unsigned _mode = 0;
    int _file = -1;
};

// The extension of a file's name in lower case, with its point; empty for none.
std::string extension_of(const std::string& path);

// The whole of it at once.
void write_file(const std::string& path, std::string_view content);

} // namespace minihost
