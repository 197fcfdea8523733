#include "minihost/check/MemoryFile.h"

#include <algorithm>
#include <cerrno>
#include <sys/mman.h>
#include <system_error>
#include <unistd.h>

namespace minihost {

namespace {

[[noreturn]] void fail() {
    throw std::system_error(errno, std::generic_category(), "a file in memory");
}

} // namespace

MemoryFile::MemoryFile(const char* name) : _file(::memfd_create(name, MFD_CLOEXEC)) {
    if (_file < 0) fail();
}

MemoryFile::~MemoryFile() {
    ::close(_file);
}

void MemoryFile::write(std::string_view text) {
    while (!text.empty()) {
        const ssize_t count = ::write(_file, text.data(), text.size());
        if (count < 0 && errno != EINTR) fail();
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

std::string MemoryFile::content(std::size_t max) const {
    const off_t end = ::lseek(_file, 0, SEEK_END);
    if (end < 0) fail();
    std::string text(std::min(static_cast<std::size_t>(end), max), '\0');
    off_t at = end - static_cast<off_t>(text.size());
    for (std::size_t have = 0; have < text.size();) {
        const ssize_t count = ::pread(_file, text.data() + have, text.size() - have, at);
        if (count < 0 && errno != EINTR) fail();
        if (count == 0) text.resize(have); // truncated meanwhile
        have += static_cast<std::size_t>(std::max<ssize_t>(count, 0));
        at += std::max<ssize_t>(count, 0);
    }
    return text;
}

} // namespace minihost
