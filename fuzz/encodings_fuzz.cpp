// Text in every encoding: decoded bytes are valid text and encode to the same bytes again.

#include "cocoa/Foundation/TextEncoding.h"
#include "fuzz/Bytes.h"

using namespace text_encoding;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string decoded = from_mac_roman(bytes);
    fuzz::require(is_utf8(decoded), "decoded text is valid");
    fuzz::require(to_mac_roman(decoded) == bytes, "encoded again, the same bytes");

    const std::string text = repaired_utf8(bytes);
    fuzz::require(is_utf8(text), "repaired text is valid");
    fuzz::require(!is_utf8(bytes) || text == bytes, "valid text needs no repair");
    fuzz::require(from_utf16(to_utf16(text)) == text, "through UTF-16 and back");
    fuzz::require(utf16_length(text) == to_utf16(text).size(), "has the length that was computed");
    std::string copy;
    for (size_t at = 0; at < text.size();) append_character(copy, next_character(text, at));
    fuzz::require(copy == text, "character by character, the same text");
    for (size_t at = 0, before = 0; at < bytes.size(); before = at) {
        next_character(bytes, at);
        fuzz::require(before < at && at <= bytes.size(), "every character is a step on");
    }

    std::u16string units(size / 2, u'\0');
    if (!units.empty()) std::memcpy(units.data(), data, 2 * units.size());
    fuzz::require(is_utf8(from_utf16(units)), "any units give valid text");
    return 0;
}
