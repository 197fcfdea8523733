#include "minihost/model/OutputFile.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace minihost {

namespace {

constexpr std::size_t max_buffer = 1 << 16;

bool write_all(int file, std::string_view content) {
    while (!content.empty()) {
        const ssize_t count = ::write(file, content.data(), content.size());
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return false;
        content.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

mode_t mode_for_new_files() {
    const mode_t mask = ::umask(0);
    ::umask(mask);
    return 0666 & ~mask;
}

std::string resolved(const std::string& path) {
    char buffer[PATH_MAX];
    return ::realpath(path.c_str(), buffer) ? buffer : path;
}

} // namespace

void OutputFile::fail() const {
    throw OutputError(_path, std::string("cannot be written: ") + std::strerror(errno));
}

OutputFile::OutputFile(const std::string& path) : _path(path) {
    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) {
        errno = EISDIR;
        fail();
    }
    if (exists && !S_ISREG(old.st_mode)) {
        _file = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
        if (_file < 0) fail();
        return;
    }
    // A rename would replace a read-only file, as it needs only write access to the folder.
    if (exists && ::access(path.c_str(), W_OK) != 0) fail();
    _resolved = exists ? resolved(path) : path;
    _mode = exists ? old.st_mode & 07777 : mode_for_new_files();
    _temporary = _resolved + ".XXXXXX";
    _file = ::mkostemp(_temporary.data(), O_CLOEXEC);
    if (_file < 0) fail(); // the destructor does not run, but there is no file to remove
}

OutputFile::~OutputFile() {
    if (_file >= 0) ::close(_file);
    if (!_temporary.empty()) ::unlink(_temporary.c_str());
}

void OutputFile::write(std::string_view content) {
    _buffer += content;
    if (_buffer.size() >= max_buffer) flush();
}

void OutputFile::flush() {
    if (!write_all(_file, _buffer)) fail();
    _buffer.clear();
}

void OutputFile::commit() {
    flush();
    if (_temporary.empty()) return;
    if (::fchmod(_file, _mode) != 0 || ::fsync(_file) != 0 ||
        ::close(std::exchange(_file, -1)) != 0 ||
        ::rename(_temporary.c_str(), _resolved.c_str()) != 0)
        fail();
    _temporary.clear();
}

std::string extension_of(const std::string& path) {
    std::string extension = std::filesystem::path(path).extension().string();
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

void write_file(const std::string& path, std::string_view content) {
    OutputFile file(path);
    file.write(content);
    file.commit();
}

} // namespace minihost
