// Files for a test.

#pragma once

#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <string>
#include <system_error>
#include <utility>

namespace minihost {

// Removed at the end of the test.
class TemporaryFolder {
  public:
    TemporaryFolder() : path(make()) {}
    ~TemporaryFolder() {
        std::error_code ignored; // files that the test made unreadable stay
        std::filesystem::remove_all(path, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path path;

    std::size_t entries() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(path), {}));
    }

  private:
    static std::string make() {
        std::string name = (std::filesystem::temp_directory_path() / "minihost.XXXXXX").string();
        return ::mkdtemp(name.data());
    }
};

// Width and height in pixels, below 65,536, from the header of a PNG file.
inline std::pair<int, int> png_size(const std::string& file) {
    const auto number = [&](std::size_t at) { // big-endian
        return static_cast<unsigned char>(file.at(at + 2)) << 8 |
               static_cast<unsigned char>(file.at(at + 3));
    };
    return {number(16), number(20)};
}

} // namespace minihost
