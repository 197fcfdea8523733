#include "minihost/check/Exports.h"

#include "minihost/model/SceneReader.h"

#include <cstring>
#include <elf.h>
#include <link.h>
#include <stdexcept>

namespace minihost {

namespace {

using Header = ElfW(Ehdr);
using Section = ElfW(Shdr);
using Symbol = ElfW(Sym);

class ElfFile {
  public:
    explicit ElfFile(const std::string& path) : _path(path), _bytes(read_file(path)) {
        const auto header = at<Header>(0);
        if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0 ||
            header.e_ident[EI_CLASS] != (sizeof(void*) == 8 ? ELFCLASS64 : ELFCLASS32))
            throw std::runtime_error(path + ": is no module of this machine");
        for (std::size_t i = 0; i < header.e_shnum; ++i)
            _sections.push_back(at<Section>(header.e_shoff + i * sizeof(Section)));
    }

    const std::vector<Section>& sections() const { return _sections; }
    template <typename Type>
    Type at(std::size_t offset) const {
        Type value;
        if (offset > _bytes.size() || _bytes.size() - offset < sizeof value)
            throw std::runtime_error(_path + ": is cut off");
        std::memcpy(&value, _bytes.data() + offset, sizeof value);
        return value;
    }
    std::string text(const Section& strings, std::size_t offset) const {
        const std::size_t start = strings.sh_offset + offset;
        if (start >= _bytes.size()) throw std::runtime_error(_path + ": is cut off");
        return _bytes.c_str() + start;
    }

  private:
    std::string _path, _bytes;
    std::vector<Section> _sections;
};

bool is_exported(const Symbol& symbol) {
    const auto binding = symbol.st_info >> 4, visibility = symbol.st_other & 3;
    return symbol.st_shndx != SHN_UNDEF && binding != STB_LOCAL &&
           (visibility == STV_DEFAULT || visibility == STV_PROTECTED);
}

bool is_toolchain_symbol(const std::string& name) {
    for (const char* start :
         {"__asan_", "__odr_asan", "__ubsan_", "__lsan_", "__start_", "__stop_"})
        if (name.starts_with(start)) return true;
    for (const char* whole : {"_init", "_fini", "_edata", "_end", "__bss_start"})
        if (name == whole) return true;
    return false;
}

} // namespace

std::vector<std::string> exported_symbols(const std::string& path) {
    const ElfFile file(path);
    std::vector<std::string> names;
    for (const Section& table : file.sections()) {
        if (table.sh_type != SHT_DYNSYM || table.sh_link >= file.sections().size()) continue;
        for (std::size_t i = 0; i < table.sh_size / sizeof(Symbol); ++i) {
            const auto symbol = file.at<Symbol>(table.sh_offset + i * sizeof(Symbol));
            if (!is_exported(symbol) || symbol.st_shndx == SHN_ABS) continue; // ABS: a version name
            std::string name = file.text(file.sections()[table.sh_link], symbol.st_name);
            if (!is_toolchain_symbol(name)) names.push_back(std::move(name));
        }
    }
    return names;
}

} // namespace minihost
