#include "minihost/check/Clock.h"

#include <optional>
#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

namespace {

std::optional<std::time_t> stopped_at;

} // namespace

namespace minihost {

void stop_clock(std::time_t seconds) {
    stopped_at = seconds;
}

} // namespace minihost

// These replace the C library's functions for the program and, as it exports them, for the modules
// that it loads.

extern "C" int clock_gettime(clockid_t clock, timespec* now) noexcept {
    if (stopped_at && (clock == CLOCK_REALTIME || clock == CLOCK_REALTIME_COARSE)) {
        *now = {*stopped_at, 0};
        return 0;
    }
    return static_cast<int>(::syscall(SYS_clock_gettime, clock, now));
}

extern "C" std::time_t time(std::time_t* result) noexcept {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    if (result) *result = now.tv_sec;
    return now.tv_sec;
}

extern "C" int gettimeofday(timeval* result, void*) noexcept {
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    *result = {now.tv_sec, now.tv_nsec / 1000};
    return 0;
}
