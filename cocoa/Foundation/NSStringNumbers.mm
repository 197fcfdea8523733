// Numbers and truth values read from the start of a text.
#include "StringText.h"

#include <algorithm>
#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <locale.h>

namespace {

// The number that the text starts with, as the C library reads it in its own locale, but without
// its hexadecimal numbers, infinities and NaNs.
std::string number_prefix(std::string_view text) {
    size_t at = 0;
    const auto digits = [&] {
        const size_t from = at;
        while (at < text.size() && text[at] >= '0' && text[at] <= '9') ++at;
        return at > from;
    };
    const auto sign = [&] { at += at < text.size() && (text[at] == '+' || text[at] == '-'); };
    while (at < text.size() && (text[at] == ' ' || (text[at] >= '\t' && text[at] <= '\r'))) ++at;
    const size_t start = at;
    sign();
    bool any = digits();
    if (at < text.size() && text[at] == '.') {
        ++at;
        any |= digits();
    }
    if (!any) return {};
    size_t end = at;
    if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
        ++at;
        sign();
        if (digits()) end = at;
    }
    return std::string(text.substr(start, end - start));
}

// A whole number at the start, saturated; strtoll saturates itself.
long long whole_number(std::string_view text) {
    const std::string prefix = number_prefix(text);
    return strtoll(prefix.c_str(), nullptr, 10);
}

} // namespace

@implementation NSString (NSNumbersInStrings)

- (double)doubleValue {
    static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number_prefix(text_of(self)).c_str(), nullptr, c_locale);
}

- (float)floatValue {
    const double value = [self doubleValue];
    const double most = std::numeric_limits<float>::max();
    return static_cast<float>(std::isinf(value) ? value : std::clamp(value, -most, most));
}

- (int)intValue {
    return static_cast<int>(std::clamp<long long>(whole_number(text_of(self)), INT_MIN, INT_MAX));
}

- (NSInteger)integerValue {
    return whole_number(text_of(self));
}

- (long long)longLongValue {
    return whole_number(text_of(self));
}

- (BOOL)boolValue {
    const std::string_view text = text_of(self);
    size_t at = text.find_first_not_of(" \t\n\v\f\r");
    if (at == std::string_view::npos) return NO;
    at += text[at] == '+' || text[at] == '-';
    at = text.find_first_not_of('0', at);
    return at != std::string_view::npos && strchr("YyTt123456789", text[at]) && text[at] != 0;
}

@end
