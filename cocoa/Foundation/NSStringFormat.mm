// Formats: printf's conversions through the C library, one at a time, and those of Foundation.
#include "NSStringStorage.h"
#include "TextEncoding.h"

#include <cstdio>
#include <cstring>

namespace {

struct Arguments {
    va_list list;
};

// One conversion of a format: "%-5.*lf" is flags "-", width 5, precision from the arguments,
// length "l", conversion 'f'.
struct Conversion {
    std::string directive = "%";
    std::string length;
    char type = 0;
};

Conversion read_conversion(const char*& at, const char* end, Arguments& arguments) {
    Conversion read;
    const auto number = [&] {
        if (at < end && *at == '*') {
            ++at;
            read.directive += std::to_string(va_arg(arguments.list, int));
        }
        while (at < end && *at >= '0' && *at <= '9') read.directive += *at++;
    };
    while (at < end && strchr("-+ #0'", *at)) read.directive += *at++;
    number();
    if (at < end && *at == '.') {
        read.directive += *at++;
        number();
    }
    while (at < end && strchr("hlqLzjt", *at)) read.length += *at++;
    if (at < end) read.type = *at++;
    return read;
}

template <typename Value>
void print(std::string& out, const std::string& directive, Value value) {
    const int length = snprintf(nullptr, 0, directive.c_str(), value);
    if (length < 0) return;
    const size_t start = out.size();
    out.resize(start + length + 1);
    snprintf(out.data() + start, length + 1, directive.c_str(), value);
    out.pop_back();
}

void print_whole(std::string& out, const Conversion& c, Arguments& arguments) {
    const bool is_signed = c.type == 'd' || c.type == 'i' || c.type == 'D';
    long long value;
    if (c.length == "ll" || c.length == "q" || c.length == "l" || c.length == "z" ||
        c.length == "j" || c.length == "t" || c.type == 'D' || c.type == 'U' || c.type == 'O')
        value = va_arg(arguments.list, long long); // all of 64 bits
    else if (is_signed)
        value = va_arg(arguments.list, int);
    else
        value = va_arg(arguments.list, unsigned int);
    if (c.length == "h") value = is_signed ? (short)value : (unsigned short)value;
    if (c.length == "hh") value = is_signed ? (signed char)value : (unsigned char)value;
    const char type = c.type == 'D' ? 'd' : c.type == 'U' ? 'u' : c.type == 'O' ? 'o' : c.type;
    print(out, c.directive + "ll" + type, value);
}

void print_real(std::string& out, const Conversion& c, Arguments& arguments) {
    if (c.length == "L")
        print(out, c.directive + "L" + c.type, va_arg(arguments.list, long double));
    else
        print(out, c.directive + c.type, va_arg(arguments.list, double));
}

void print_c_string(std::string& out, const Conversion& c, Arguments& arguments) {
    const char* bytes = va_arg(arguments.list, const char*);
    std::string cut;
    print(cut, c.directive + "s", bytes ? bytes : "(null)");
    out += text_encoding::from_mac_roman(cut);
}

void print_object(std::string& out, Arguments& arguments) {
    id object = va_arg(arguments.list, id);
    out += object ? utf8_of([object description]) : std::string_view("(null)");
}

void print_conversion(std::string& out, const Conversion& c, Arguments& arguments) {
    switch (c.type) {
    case '%':
        out += '%';
        break;
    case '@':
        print_object(out, arguments);
        break;
    case 'd':
    case 'i':
    case 'u':
    case 'x':
    case 'X':
    case 'o':
    case 'D':
    case 'U':
    case 'O':
        print_whole(out, c, arguments);
        break;
    case 'e':
    case 'E':
    case 'f':
    case 'F':
    case 'g':
    case 'G':
    case 'a':
    case 'A':
        print_real(out, c, arguments);
        break;
    case 'c':
        print(out, c.directive + "c", va_arg(arguments.list, int));
        break;
    case 'C': {
        const char16_t unit = static_cast<char16_t>(va_arg(arguments.list, int));
        out += text_encoding::from_utf16({&unit, 1});
        break;
    }
    case 's':
        print_c_string(out, c, arguments);
        break;
    case 'p':
        print(out, c.directive + "p", va_arg(arguments.list, void*));
        break;
    default: // not a conversion: printed as it is
        out += c.directive + c.length;
        if (c.type) out += c.type;
    }
}

} // namespace

std::string formatted(NSString* format, va_list given) {
    Arguments arguments;
    va_copy(arguments.list, given);
    const std::string_view text = utf8_of(format);
    std::string out;
    const char* at = text.data();
    const char* end = at + text.size();
    while (at < end) {
        if (*at != '%') {
            out += *at++;
            continue;
        }
        ++at;
        print_conversion(out, read_conversion(at, end, arguments), arguments);
    }
    va_end(arguments.list);
    return text_encoding::is_utf8(out) ? out : text_encoding::repaired_utf8(out);
}
