// A file in memory that a process shares with those that it forks off.

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace minihost {

// Every function throws std::system_error.
class MemoryFile {
  public:
    explicit MemoryFile(const char* name);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int descriptor() const { return _file; }
    void write(std::string_view text);
    // What was written to it, of more than `most` bytes the last ones.
    std::string content(std::size_t most = SIZE_MAX) const;

  private:
    const int _file;
};

} // namespace minihost
