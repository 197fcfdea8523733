#include "minihost/model/OutputFile.h"

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace minihost {

namespace {

class Descriptor {
  public:
    explicit Descriptor(int number) : _number(number) {}
    ~Descriptor() {
        if (_number >= 0) ::close(_number);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int get() const { return _number; }
    // False when the system could not bring everything home.
    bool close() { return ::close(std::exchange(_number, -1)) == 0; }

  private:
    int _number;
};

// Removes a file unless it has become the real one.
struct Temporary {
    std::string path;
    ~Temporary() {
        if (!path.empty()) ::unlink(path.c_str());
    }
};

[[noreturn]] void fail(const std::string& path) {
    throw OutputError(path, std::string("cannot be written: ") + std::strerror(errno));
}

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

void write_file(const std::string& path, std::string_view content) {
    struct stat old {};
    const bool exists = ::stat(path.c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) {
        errno = EISDIR;
        fail(path);
    }
    if (exists && !S_ISREG(old.st_mode)) {
        Descriptor file(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
        if (file.get() < 0 || !write_all(file.get(), content)) fail(path);
        return;
    }
    // Replacing a file asks only for a right on its folder: one that is not to be written stays.
    if (exists && ::access(path.c_str(), W_OK) != 0) fail(path);
    const std::string target = exists ? resolved(path) : path;
    Temporary temporary{target + ".XXXXXX"};
    Descriptor file(::mkostemp(temporary.path.data(), O_CLOEXEC));
    if (file.get() < 0) {
        temporary.path.clear();
        fail(path);
    }
    const mode_t mode = exists ? old.st_mode & 07777 : mode_for_new_files();
    if (!write_all(file.get(), content) || ::fchmod(file.get(), mode) != 0 ||
        ::fsync(file.get()) != 0 || !file.close() ||
        ::rename(temporary.path.c_str(), target.c_str()) != 0)
        fail(path);
    temporary.path.clear();
}

} // namespace minihost
