// A file in memory, shared with forked processes.

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
    // The last bytes, up to `max`.
    std::string content(std::size_t max = SIZE_MAX) const;

  private:
    const int _file;
};

} // namespace minihost
