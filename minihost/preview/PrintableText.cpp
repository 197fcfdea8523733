#include "minihost/preview/PrintableText.h"

#include <glib.h>

namespace minihost::preview {

std::string printable_text(std::string_view text) {
    char* valid = g_utf8_make_valid(text.data(), static_cast<gssize>(text.size()));
    std::string printable(valid);
    g_free(valid);
    for (char& c : printable) {
        if (static_cast<unsigned char>(c) < 0x20 || c == 0x7f) c = ' ';
    }
    // XML forbids U+FFFE and U+FFFF; the replacement character U+FFFD is as long.
    for (std::size_t at = 0; (at = printable.find("\xef\xbf", at)) != std::string::npos; at += 3) {
        if (at + 2 < printable.size() && static_cast<unsigned char>(printable[at + 2]) >= 0xbe) {
            printable[at + 2] = '\xbd';
        }
    }
    return printable;
}

} // namespace minihost::preview
