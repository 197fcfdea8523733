// Loading and unloading: what the module's file exports, whether it starts, what a thousand loads
// leave behind.

#include "minihost/check/Exports.h"
#include "minihost/check/Groups.h"
#include "minihost/check/Life.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <optional>

namespace minihost {

namespace {

constexpr int loads_per_level = 100; // a thousand on the highest
constexpr int warm_up = 10;          // loads that may still fill caches

std::size_t count_files(const char* folder) {
    std::error_code unreadable;
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator(folder, unreadable), {}));
}

std::size_t count_mappings() {
    std::ifstream maps("/proc/self/maps");
    std::size_t count = 0;
    for (std::string line; std::getline(maps, line);) ++count;
    return count;
}

struct Holdings {
    std::size_t files = count_files("/proc/self/fd");
    std::size_t threads = count_files("/proc/self/task");
    std::size_t mappings = count_mappings();
};

// Bytes that are allocated; nothing where the C library is not the one that allocates.
std::optional<std::size_t> allocated_bytes() {
    const struct mallinfo2 info = ::mallinfo2();
    if (sanitizer_factor > 1 || info.uordblks == 0) return std::nullopt;
    return info.uordblks + info.hblkhd;
}

void compare(const Holdings& before, const Holdings& after, int loads, Findings& findings) {
    const auto grown = [&](const char* what, std::size_t from, std::size_t to) {
        findings.fail(std::string(what) + " grew from " + std::to_string(from) + " to " +
                      std::to_string(to) + " in " + std::to_string(loads) + " loads");
    };
    const auto count = static_cast<std::size_t>(loads);
    if (after.files > before.files) grown("open files", before.files, after.files);
    if (after.threads > before.threads) grown("threads", before.threads, after.threads);
    // The allocator maps memory now and then; a mapping every other load is a leak.
    if (after.mappings > before.mappings + count / 2)
        grown("mappings of memory", before.mappings, after.mappings);
}

} // namespace

void check_exports(const CheckContext& context, Findings& findings) {
    findings.count_run();
    bool has_entry = false;
    std::vector<std::string> names;
    try {
        names = exported_symbols(context.subject.plugin);
    } catch (const std::runtime_error& error) {
        return findings.fail(error.what());
    }
    for (const std::string& name : names) {
        if (name == kAEGPEntryName)
            has_entry = true;
        else
            findings.fail("exports " + name);
    }
    if (!has_entry) findings.fail(std::string("does not export ") + kAEGPEntryName);
}

void check_entry(const CheckContext& context, Findings& findings) {
    findings.count_run();
    if (!context.rehearsal.why_not.empty()) return findings.fail(context.rehearsal.why_not);
    for (const RehearsedLife& life : context.rehearsal.lives)
        if (!life.ended_well() && life.ending.step == "load")
            return findings.crash(death_of(life.ending));
}

void check_loading_repeatedly(const CheckContext& context, Findings& findings) {
    const RehearsedLife& plain = context.rehearsal.lives.front();
    if (!plain.ended_well() && plain.ending.step == "unload")
        return findings.skip("not even one unloading ends well");
    const int loads = loads_per_level * context.subject.level;
    std::optional<Holdings> before;
    for (int number = 1; number <= loads; ++number) {
        if (number == warm_up) before.emplace();
        Life life(context.subject.plugin, context.subject.small_scene, {}, context.place);
        if (!life.load())
            return findings.fail("load " + std::to_string(number) + ": " + life.why_not());
        life.unload();
        findings.count_run();
        ++context.place.runs;
    }
    compare(*before, {}, loads - warm_up, findings);
    note_cut(context.subject, findings);
}

// A whole life again and again: what is allocated may not go on growing.
void check_memory(const CheckContext& context, Findings& findings) {
    const RehearsedLife& plain = context.rehearsal.lives.front();
    if (!plain.ended_well()) return findings.skip("the plain life does not end well");
    for (const Violation& violation : plain.violations)
        if (violation.kind == ViolationKind::Leak) {
            findings.fail(violation.text);
            for (const std::string& line : plain.ending.said) findings.note(line);
        }
    if (!allocated_bytes()) {
        findings.count_run(); // the rehearsal's
        findings.note("told by the leak sanitizer");
        return;
    }
    constexpr std::size_t most_bytes_per_life = 256; // a runtime's own lists may grow a little
    const int lives = 10 + 4 * context.subject.level;
    std::optional<std::size_t> before;
    for (int number = 0; number < 2 * lives; ++number) {
        if (number == lives) before = allocated_bytes();
        {
            Life life(context.subject.plugin, context.subject.small_scene, {}, context.place);
            life.live(plain.scenario);
        }
        findings.count_run();
        ++context.place.runs;
    }
    const std::size_t after = *allocated_bytes();
    const std::size_t grown =
        after > *before ? (after - *before) / static_cast<std::size_t>(lives) : 0;
    if (grown > most_bytes_per_life)
        findings.fail("every life leaves " + std::to_string(grown) + " bytes behind");
    else
        findings.note("every life leaves " + std::to_string(grown) + " bytes behind");
    note_cut(context.subject, findings);
}

} // namespace minihost
