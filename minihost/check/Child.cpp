#include "minihost/check/Child.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <new>
#include <poll.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

// Of the leak sanitizer, where the program has one.
extern "C" __attribute__((weak)) int __lsan_do_recoverable_leak_check();

namespace minihost {

namespace {

constexpr std::size_t most_lines_said = 12;

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

// Memory that stays the same one after a fork.
Place* shared_place() {
    void* shared =
        ::mmap(nullptr, sizeof(Place), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) fail("no memory to share");
    return new (shared) Place;
}

void unmap(Place* place) {
    ::munmap(place, sizeof(Place));
}

// Libraries have threads that end by themselves, such as those that look for fonts. A lock that one
// holds at a fork would be held in the child for ever: so they are awaited, except for those that
// have outlived that once.
void await_threads() {
    constexpr std::chrono::seconds patience(1);
    constexpr std::chrono::microseconds between_looks(200);
    static nlink_t lasting = 1;
    const auto until = std::chrono::steady_clock::now() + patience;
    struct stat threads {};
    while (::stat("/proc/self/task", &threads) == 0 && threads.st_nlink > 2 + lasting) {
        if (std::chrono::steady_clock::now() > until) lasting = threads.st_nlink - 2;
        std::this_thread::sleep_for(between_looks);
    }
}

} // namespace

#if defined(__SANITIZE_ADDRESS__)
const int sanitizer_factor = 5;
#else
const int sanitizer_factor = 1;
#endif

void Place::enter(std::string_view step) {
    const std::size_t length = std::min(step.size(), sizeof _step - 1);
    std::memcpy(_step, step.data(), length);
    _step[length] = 0;
    ++_steps;
}

std::string Place::step() const {
    return std::string(_step, ::strnlen(_step, sizeof _step));
}

Child::Child(const Work& work, Limits limits, Exit exit)
    : _place(shared_place(), unmap), _limits(limits), _start(Clock::now()), _step_start(_start) {
    await_threads();
    std::fflush(nullptr); // or the child writes it once more
    const pid_t parent = ::getpid();
    _process = ::fork();
    if (_process < 0) fail("no process can be made");
    if (_process == 0) {
        // A child whose parent is ended goes, too.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) std::_Exit(1);
        this->work(work, exit);
    }
    _watch = static_cast<int>(::syscall(SYS_pidfd_open, _process, 0));
}

Child::~Child() {
    if (!_over) {
        ::kill(_process, SIGKILL);
        ::waitpid(_process, nullptr, 0);
    }
    if (_watch >= 0) ::close(_watch);
}

void Child::work(const Work& work, Exit exit) {
    ::dup2(_said.descriptor(), STDERR_FILENO);
    std::signal(SIGINT, SIG_DFL);
    try {
        _result.write(work(*_place));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        std::fflush(stderr);
        std::_Exit(1);
    }
    if (exit == Exit::Quick) {
        std::fflush(nullptr);
        std::_Exit(0);
    }
    if (__lsan_do_recoverable_leak_check && __lsan_do_recoverable_leak_check()) {
        _place->_leaked = true;
        std::_Exit(0); // it is told; the verdict at the exit would be the same
    }
    std::exit(0);
}

bool Child::wait(std::chrono::milliseconds time) {
    const Clock::time_point until = Clock::now() + time;
    while (!_over) {
        int status = 0;
        if (::waitpid(_process, &status, WNOHANG) == _process) {
            finish(status);
            break;
        }
        check_limits();
        const auto left = until - Clock::now();
        if (_over || left <= left.zero()) break;
        // A limit is looked at every now and then; the end of the process is told at once.
        const auto slice = std::min<std::chrono::milliseconds>(
            std::chrono::ceil<std::chrono::milliseconds>(left), std::chrono::milliseconds(100));
        pollfd poll{_watch, POLLIN, 0};
        ::poll(&poll, _watch >= 0 ? 1 : 0, static_cast<int>(slice.count()));
    }
    return _over;
}

// What it has used of it; 0 once it has ended.
std::chrono::nanoseconds Child::processor_time() const {
    clockid_t clock{};
    timespec time{};
    if (::clock_getcpuclockid(_process, &clock) != 0 || ::clock_gettime(clock, &time) != 0)
        return std::chrono::nanoseconds(0);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void Child::check_limits() {
    const Clock::time_point now = Clock::now();
    const std::chrono::nanoseconds worked = processor_time();
    if (const std::uint64_t steps = _place->steps(); steps != _steps_seen) {
        _steps_seen = steps;
        _step_start = now;
        _step_start_of_processor = worked;
    }
    std::chrono::milliseconds limit;
    if (now - _start > _limits.whole)
        limit = _limits.whole;
    else if (now - _step_start > Limits::times_waiting * _limits.step)
        limit = Limits::times_waiting * _limits.step;
    else if (worked - _step_start_of_processor > _limits.step)
        limit = _limits.step;
    else
        return;
    ::kill(_process, SIGKILL);
    ::waitpid(_process, nullptr, 0);
    _over = true;
    const double seconds = std::chrono::duration<double>(limit).count();
    _ending = {Ending::Kind::TimedOut,
               "",
               _place->step(),
               "did not end within " + std::to_string(static_cast<int>(seconds + 0.5)) + " s",
               false,
               last_lines()};
}

void Child::finish(int status) {
    _over = true;
    _ending.step = _place->step();
    _ending.said = last_lines();
    _ending.leaked = _place->_leaked;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        _ending.result = _result.content();
        return;
    }
    _ending.kind = Ending::Kind::Crashed;
    _ending.cause = WIFSIGNALED(status)
                        ? std::string("ended by a signal: ") + ::strsignal(WTERMSIG(status))
                        : "ended with status " + std::to_string(WEXITSTATUS(status));
}

std::vector<std::string> Child::last_lines() const {
    const std::string text = _said.content(1 << 16);
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        if (end > start) lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    // What a sanitizer says first tells most.
    const auto heading = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find("Sanitizer") != std::string::npos ||
               line.find("runtime error") != std::string::npos;
    });
    if (heading != lines.end())
        lines.erase(lines.begin(), heading);
    else if (lines.size() > most_lines_said)
        lines.erase(lines.begin(), lines.end() - most_lines_said);
    if (lines.size() > most_lines_said) lines.resize(most_lines_said);
    return lines;
}

Ending run_in_child(const Child::Work& work, Limits limits, Child::Exit exit) {
    Child child(work, limits, exit);
    while (!child.wait(std::chrono::seconds(10))) {
    }
    return child.ending();
}

} // namespace minihost
