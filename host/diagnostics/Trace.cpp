#include "host/diagnostics/Debug.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <sstream>
#include <string>

namespace {

char trace_buffer[2048];
char error_buffer[1024];

} // namespace

namespace debug {

int Trace(const char* format, ...) {
    std::va_list values;
    va_start(values, format);
    const int length = std::vsnprintf(trace_buffer, sizeof trace_buffer, format, values);
    va_end(values);
    return length;
}

const char* MakeErrorString(std::basic_ostream<char, std::char_traits<char>>& stream, int,
                            const char*) {
    stream.flush();
    std::string text;
    if (const auto* buffer = dynamic_cast<const std::stringbuf*>(stream.rdbuf()))
        text = buffer->str();
    const std::streamoff written = std::max<std::streamoff>(stream.tellp(), 0);
    const std::size_t n =
        std::min({static_cast<std::size_t>(written), text.size(), sizeof error_buffer - 1});
    text.copy(error_buffer, n);
    error_buffer[n] = '\0';
    stream.seekp(0);
    return error_buffer[0] == '0' ? error_buffer + 1 : error_buffer;
}

} // namespace debug
