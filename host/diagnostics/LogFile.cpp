#include "host/diagnostics/LogFile.h"

#include <cstdarg>
#include <cstdio>
#include <ctime>
#include <memory>

const char* logfile_name = "g:\\Quillon.log";

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

bool started = false;

void start_log() {
    const std::time_t now = std::time(nullptr);
    char date[32];
    std::strftime(date, sizeof date, "%a %b %e %H:%M:%S %Y\n", std::localtime(&now));
    if (const File file{std::fopen(logfile_name, "wt")})
        std::fprintf(file.get(), "Log file started %s\n", date);
}

} // namespace

int logmsg(const char* format, ...) {
    if (!started) start_log();
    started = true;
    if (const File file{std::fopen(logfile_name, "a")}) {
        std::va_list values;
        va_start(values, format);
        std::vfprintf(file.get(), format, values);
        va_end(values);
    }
    return 0;
}
