// Loading and unloading: what the module exports, whether it loads, what many loads leave behind.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/Deviations.h"
#include "minihost/check/Exports.h"
#include "minihost/check/PluginRun.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <malloc.h>
#include <optional>

namespace minihost {

namespace {

constexpr int loads_per_level = 100;
constexpr int warm_up_loads = 10; // may still fill caches

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

struct ProcessResources {
    std::size_t files = count_files("/proc/self/fd");
    std::size_t threads = count_files("/proc/self/task");
    std::size_t mappings = count_mappings();
};

// Nothing if a sanitizer replaces the allocator.
std::optional<std::size_t> allocated_bytes() {
    const struct mallinfo2 info = ::mallinfo2();
    if (sanitizer_factor > 1 || info.uordblks == 0) return std::nullopt;
    return info.uordblks + info.hblkhd;
}

void compare(const ProcessResources& before, const ProcessResources& after, int loads,
             Findings& findings) {
    const auto grown = [&](const char* what, std::size_t from, std::size_t to) {
        findings.fail(std::string(what) + " grew from " + std::to_string(from) + " to " +
                      std::to_string(to) + " in " + std::to_string(loads) + " loads");
    };
    const auto count = static_cast<std::size_t>(loads);
    if (after.files > before.files) grown("open files", before.files, after.files);
    if (after.threads > before.threads) grown("threads", before.threads, after.threads);
    // The allocator maps memory now and then, but not at every other load.
    if (after.mappings > before.mappings + count / 2)
        grown("mappings of memory", before.mappings, after.mappings);
}

} // namespace

void check_exports(const CheckContext& context, Findings& findings) {
    findings.count_run();
    bool has_entry = false;
    std::vector<std::string> names;
    try {
        names = exported_symbols(context.target.plugin);
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
    if (!context.baseline.load_error.empty()) return findings.fail(context.baseline.load_error);
    for (const BaselineRun& run : context.baseline.runs)
        if (!run.is_complete() && run.result.last_checkpoint == "load")
            return findings.crash(describe_failure(run.result));
}

void check_loading_repeatedly(const CheckContext& context, Findings& findings) {
    const BaselineRun& plain = context.baseline.runs.front();
    if (!plain.is_complete() && plain.result.last_checkpoint == "unload")
        return findings.skip("not even one unloading ends well");
    const int loads = loads_per_level * context.target.level;
    std::optional<ProcessResources> before;
    for (int number = 1; number <= loads; ++number) {
        if (number == warm_up_loads) before.emplace();
        PluginRun run(context.target.plugin, context.target.small_scene, {}, context.progress);
        if (!run.load())
            return findings.fail("load " + std::to_string(number) + ": " + run.load_error());
        run.unload();
        findings.count_run();
        ++context.progress.runs;
    }
    compare(*before, {}, loads - warm_up_loads, findings);
    note_small_scene(context.target, findings);
}

// Many whole runs must not allocate more and more.
void check_memory(const CheckContext& context, Findings& findings) {
    const BaselineRun& plain = context.baseline.runs.front();
    if (!plain.is_complete()) return findings.skip("the plain life does not end well");
    for (const Violation& violation : plain.violations)
        if (violation.kind == ViolationKind::Leak) {
            findings.fail(violation.text);
            for (const std::string& line : plain.result.error_lines) findings.note(line);
        }
    if (!allocated_bytes()) {
        findings.count_run(); // that of the baseline
        findings.note("told by the leak sanitizer");
        return;
    }
    constexpr std::size_t max_bytes_per_run = 256; // the runtime's tables may grow
    const int runs = 10 + 4 * context.target.level;
    std::vector<std::size_t> allocated; // after warming up, and half of the other runs later
    for (int number = 0; number < 2 * runs; ++number) {
        if (number == runs || number == runs + runs / 2) allocated.push_back(*allocated_bytes());
        PluginRun(context.target.plugin, context.target.small_scene, {}, context.progress)
            .play(plain.scenario);
        findings.count_run();
        ++context.progress.runs;
    }
    allocated.push_back(*allocated_bytes());
    // A leak shows in both halves, a table that grows in one.
    const auto growth = [&](std::size_t half) {
        const std::size_t before = allocated[half], after = allocated[half + 1];
        return after > before ? (after - before) / static_cast<std::size_t>(runs / 2) : 0;
    };
    const std::size_t grown = std::min(growth(0), growth(1));
    if (grown > max_bytes_per_run)
        findings.fail("every life leaves " + std::to_string(grown) + " bytes behind");
    else
        findings.note("every life leaves " + std::to_string(grown) + " bytes behind");
    note_small_scene(context.target, findings);
}

} // namespace minihost
