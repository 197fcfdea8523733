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
    const off_t size = ::lseek(_file, 0, SEEK_END);
    if (size < 0) fail();
    std::string text(std::min(static_cast<std::size_t>(size), max), '\0');
    const ssize_t count =
        ::pread(_file, text.data(), text.size(), size - static_cast<off_t>(text.size()));
    if (count < 0) fail();
    text.resize(static_cast<std::size_t>(count));
    return text;
}

} // namespace minihost
