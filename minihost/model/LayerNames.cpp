#include "minihost/model/LayerNames.h"

#include <algorithm>

namespace minihost {

namespace {

struct Numbered {
    std::string stem;
    std::uint64_t number = 0; // 0 for a name without one
};

// "Card 7" has the number 7; "Card", "Card 07" and " 7" have none.
Numbered split(const std::string& name) {
    const std::size_t blank = name.find_last_of(' ');
    if (blank == std::string::npos || blank == 0) return {name};
    const std::string digits = name.substr(blank + 1);
    const bool is_number =
        !digits.empty() && digits.size() <= 9 && digits[0] != '0' &&
        std::all_of(digits.begin(), digits.end(), [](char c) { return c >= '0' && c <= '9'; });
    if (!is_number) return {name};
    return {name.substr(0, blank), std::stoull(digits)};
}

} // namespace

void LayerNames::add(const std::string& name) {
    ++_uses[name];
}

void LayerNames::remove(const std::string& name) {
    const auto found = _uses.find(name);
    if (found == _uses.end()) return;
    if (--found->second > 0) return;
    _uses.erase(found);
    const Numbered parts = split(name);
    const auto hint = _first_maybe_free.find(parts.stem);
    if (parts.number >= 2 && hint != _first_maybe_free.end())
        hint->second = std::min(hint->second, parts.number);
}

std::string LayerNames::for_duplicate_of(const std::string& name) {
    const std::string stem = split(name).stem;
    std::uint64_t& number = _first_maybe_free.try_emplace(stem, 2).first->second;
    for (;; ++number) {
        std::string candidate = stem + ' ' + std::to_string(number);
        if (!_uses.contains(candidate)) return candidate;
    }
}

} // namespace minihost
