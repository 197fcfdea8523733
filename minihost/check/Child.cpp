#include "minihost/check/Child.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
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

constexpr std::size_t max_error_lines = 12;

[[noreturn]] void fail(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

ChildProgress* map_shared_progress() {
    void* shared = ::mmap(nullptr, sizeof(ChildProgress), PROT_READ | PROT_WRITE,
                          MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (shared == MAP_FAILED) fail("no memory to share");
    return new (shared) ChildProgress;
}

void unmap(ChildProgress* progress) {
    ::munmap(progress, sizeof(ChildProgress));
}

// A lock that another thread holds at a fork stays locked in the child. So this waits for threads
// that end by themselves, such as those that search for fonts; a thread that outlives one wait is
// expected to stay.
void await_threads() {
    constexpr std::chrono::seconds patience(1);
    constexpr std::chrono::microseconds interval(200);
    static nlink_t permanent = 1;
    const auto until = std::chrono::steady_clock::now() + patience;
    struct stat threads {};
    while (::stat("/proc/self/task", &threads) == 0 && threads.st_nlink > 2 + permanent) {
        if (std::chrono::steady_clock::now() > until) permanent = threads.st_nlink - 2;
        std::this_thread::sleep_for(interval);
    }
}

} // namespace

#if defined(__SANITIZE_ADDRESS__)
const int sanitizer_factor = 5;
#else
const int sanitizer_factor = 1;
#endif

void ChildProgress::checkpoint(std::string_view name) {
    const std::size_t length = std::min(name.size(), sizeof _last_checkpoint - 1);
    std::memcpy(_last_checkpoint, name.data(), length);
    _last_checkpoint[length] = 0;
    ++_checkpoints;
}

std::string ChildProgress::last_checkpoint() const {
    return std::string(_last_checkpoint, ::strnlen(_last_checkpoint, sizeof _last_checkpoint));
}

std::string describe_failure(const ChildResult& result) {
    std::string text = result.cause + " at \"" + result.last_checkpoint + "\"";
    for (const std::string& line : result.error_lines) text += "\n" + line;
    return text;
}

Child::Child(const Work& work, Limits limits, Exit exit)
    : _progress(map_shared_progress(), unmap),
      _limits(limits),
      _start(Clock::now()),
      _checkpoint_time(_start) {
    await_threads();
    std::fflush(nullptr); // or the child writes it again
    const pid_t parent = ::getpid();
    _process = ::fork();
    if (_process < 0) fail("no process can be made");
    if (_process == 0) {
        // A killed parent takes its children with it.
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (::getppid() != parent) std::_Exit(1);
        this->work(work, exit);
    }
    _process_file = static_cast<int>(::syscall(SYS_pidfd_open, _process, 0));
}

Child::~Child() {
    if (!_ended) {
        ::kill(_process, SIGKILL);
        ::waitpid(_process, nullptr, 0);
    }
    if (_process_file >= 0) ::close(_process_file);
}

void Child::work(const Work& work, Exit exit) {
    ::dup2(_errors.descriptor(), STDERR_FILENO);
    std::signal(SIGINT, SIG_DFL);
    try {
        _output.write(work(*_progress));
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
        _progress->_leaked = true;
        std::_Exit(0); // exit() would check again
    }
    std::exit(0);
}

bool Child::wait(std::chrono::milliseconds time) {
    const Clock::time_point until = Clock::now() + time;
    while (!_ended) {
        int status = 0;
        if (::waitpid(_process, &status, WNOHANG) == _process) {
            finish(status);
            break;
        }
        check_limits();
        const auto left = until - Clock::now();
        if (_ended || left <= left.zero()) break;
        // Limits are checked now and then; the end of the process wakes this up at once.
        const auto slice = std::min<std::chrono::milliseconds>(
            std::chrono::ceil<std::chrono::milliseconds>(left), std::chrono::milliseconds(100));
        pollfd poll{_process_file, POLLIN, 0};
        ::poll(&poll, _process_file >= 0 ? 1 : 0, static_cast<int>(slice.count()));
    }
    return _ended;
}

// 0 after the end of the process.
std::chrono::nanoseconds Child::processor_time() const {
    clockid_t clock{};
    timespec time{};
    if (::clock_getcpuclockid(_process, &clock) != 0 || ::clock_gettime(clock, &time) != 0)
        return std::chrono::nanoseconds(0);
    return std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
}

void Child::check_limits() {
    const Clock::time_point now = Clock::now();
    const std::chrono::nanoseconds processor = processor_time();
    if (const std::uint64_t checkpoints = _progress->checkpoints();
        checkpoints != _checkpoints_seen) {
        _checkpoints_seen = checkpoints;
        _checkpoint_time = now;
        _checkpoint_processor_time = processor;
    }
    std::chrono::milliseconds limit;
    if (now - _start > _limits.total)
        limit = _limits.total;
    else if (now - _checkpoint_time > Limits::waiting_factor * _limits.between_checkpoints)
        limit = Limits::waiting_factor * _limits.between_checkpoints;
    else if (processor - _checkpoint_processor_time > _limits.between_checkpoints)
        limit = _limits.between_checkpoints;
    else
        return;
    ::kill(_process, SIGKILL);
    ::waitpid(_process, nullptr, 0);
    _ended = true;
    const double seconds = std::chrono::duration<double>(limit).count();
    _result.kind = ChildResult::Kind::TimedOut;
    _result.last_checkpoint = _progress->last_checkpoint();
    _result.cause = "did not end within " + std::to_string(std::lround(seconds)) + " s";
    _result.error_lines = last_error_lines();
}

void Child::finish(int status) {
    _ended = true;
    _result.last_checkpoint = _progress->last_checkpoint();
    _result.error_lines = last_error_lines();
    _result.leaked = _progress->_leaked;
    if (WIFEXITED(status) && WEXITSTATUS(status) == 0) {
        _result.output = _output.content();
        return;
    }
    _result.kind = ChildResult::Kind::Crashed;
    _result.cause = WIFSIGNALED(status)
                        ? std::string("ended by a signal: ") + ::strsignal(WTERMSIG(status))
                        : "ended with status " + std::to_string(WEXITSTATUS(status));
}

std::vector<std::string> Child::last_error_lines() const {
    const std::string text = _errors.content(1 << 16);
    std::vector<std::string> lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find('\n', start), text.size());
        if (end > start) lines.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    // A sanitizer says most in its first lines.
    const auto heading = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
        return line.find("Sanitizer") != std::string::npos ||
               line.find("runtime error") != std::string::npos;
    });
    if (heading != lines.end())
        lines.erase(lines.begin(), heading);
    else if (lines.size() > max_error_lines)
        lines.erase(lines.begin(), lines.end() - max_error_lines);
    if (lines.size() > max_error_lines) lines.resize(max_error_lines);
    return lines;
}

ChildResult run_in_child(const Child::Work& work, Limits limits, Child::Exit exit) {
    Child child(work, limits, exit);
    while (!child.wait(std::chrono::seconds(10))) {
    }
    return child.result();
}

} // namespace minihost
