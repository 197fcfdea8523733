// Random users. A failure is reduced to few steps and written as an action file.

#include "minihost/check/CheckFunctions.h"
#include "minihost/check/Deviations.h"
#include "minihost/check/RandomRun.h"
#include "minihost/check/ReplayCommands.h"
#include "minihost/check/Shrink.h"
#include "minihost/model/OutputFile.h"

#include <algorithm>
#include <filesystem>
#include <set>

namespace minihost {

namespace {

using Clock = std::chrono::steady_clock;
using Input = RandomUser::Input;

constexpr std::size_t max_reported = 3; // different failures

std::vector<std::string> lines_of(const std::vector<Step>& steps) {
    std::vector<std::string> lines;
    for (const Step& step : steps) lines.insert(lines.end(), step.begin(), step.end());
    return lines;
}

// The name of its first action.
std::string kind_of(const Step& step) {
    return step[0].substr(0, step[0].find(' '));
}

class RandomCheck {
  public:
    RandomCheck(const CheckContext& context, Findings& findings, Input input)
        : _context(context), _target(context.target), _findings(findings), _input(input) {}

    void run() {
        RandomRuns runs(_context, limits());
        std::vector<std::pair<std::uint64_t, RandomResult>> failed;
        const auto users = static_cast<std::size_t>(2 * _target.level);
        for (std::size_t i = 0; i < users; ++i) {
            const std::uint64_t seed = _target.seed * 1000 + i;
            runs.start_user(seed, _input, steps_per_user(), [&, seed](RandomResult result) {
                _context.progress.checkpoint("user " + std::to_string(seed));
                _findings.count_run();
                if (result.failure) failed.emplace_back(seed, std::move(result));
            });
        }
        runs.finish();
        std::vector<RunFailure> reported;
        for (const auto& [seed, result] : failed) {
            if (reported.size() == max_reported) break;
            if (std::find(reported.begin(), reported.end(), *result.failure) != reported.end())
                continue;
            reported.push_back(*result.failure);
            report(seed, result);
        }
        note_small_scene(_target, _findings);
    }

  private:
    std::size_t steps_per_user() const {
        return 1000 + 500 * static_cast<std::size_t>(_target.level);
    }
    Limits limits() const {
        Limits limits = _target.limits();
        limits.total = std::chrono::minutes(_target.level * sanitizer_factor);
        return limits;
    }

    RandomResult replay(const std::vector<Step>& steps) {
        RandomRuns runs(_context, limits());
        RandomResult result;
        runs.start_replay(steps, [&](RandomResult it) { result = std::move(it); });
        runs.finish();
        _context.progress.checkpoint("shrinking " + std::to_string(steps.size()) + " deeds");
        return result;
    }

    bool fails_alike(const std::vector<Step>& steps, const RandomResult& first) {
        return replay(steps).failure == first.failure;
    }

    // Leaves out all steps of a kind at once, as most kinds do not matter.
    std::vector<Step> without_kinds(const RandomResult& first, Clock::time_point deadline) {
        std::vector<Step> left = first.steps;
        std::set<std::string> kinds;
        for (const Step& it : left) kinds.insert(kind_of(it));
        for (const std::string& kind : kinds) {
            if (Clock::now() >= deadline) break;
            std::vector<Step> tried = left;
            std::erase_if(tried, [&](const Step& it) { return kind_of(it) == kind; });
            if (fails_alike(tried, first)) left = std::move(tried);
        }
        return left;
    }

    // Steps that fail alike, without actions that are not possible.
    std::vector<Step> shortened(const RandomResult& first) {
        const auto deadline = Clock::now() + std::chrono::seconds(20 + 10 * _target.level);
        const std::vector<Step> some = without_kinds(first, deadline);
        const auto chosen = [&](const StepIndices& indices) {
            std::vector<Step> steps;
            for (const std::size_t i : indices) steps.push_back(some[i]);
            return steps;
        };
        const StepIndices left = shrink(
            some.size(),
            [&](const StepIndices& tried) { return fails_alike(chosen(tried), first); }, deadline);
        const RandomResult last = replay(chosen(left));
        // The failure may depend on something else than the steps.
        if (last.failure != first.failure) return first.steps;
        return fails_alike(last.steps, first) ? last.steps : chosen(left);
    }

    void report(std::uint64_t seed, const RandomResult& result) {
        const std::vector<std::string> all = lines_of(result.steps);
        const std::vector<std::string> lines = lines_of(shortened(result));
        const std::string actions =
            write_beside_report(seed, ".actions", actions_text(seed, lines));
        std::string scene = _target.scene_file;
        if (scene.empty() || !_target.small_scene_note.empty())
            scene = write_beside_report(seed, ".json", _target.small_scene);
        const bool crashed = result.failure->kind == ChildResult::Kind::Crashed;
        _findings.add(crashed ? Outcome::Crash : Outcome::Fail, result.text);
        _findings.note("seed " + std::to_string(_target.seed) + ": " + std::to_string(all.size()) +
                       " actions, of which " + std::to_string(lines.size()) + " are enough");
        _findings.note("to repeat them: minihost run " + shell_quote(scene) + " " +
                       shell_quote(actions) + " --plugin " + shell_quote(_target.plugin));
    }

    std::string actions_text(std::uint64_t seed, const std::vector<std::string>& lines) const {
        std::string text = "# What user " + std::to_string(seed) + " of " + id() + " did.\n";
        for (const std::string& line : lines) text += line + "\n";
        return text;
    }

    const char* id() const { return _input == Input::Actions ? "random.actions" : "random.events"; }

    // Falls back to the temporary folder. Returns the path.
    std::string write_beside_report(std::uint64_t seed, const char* extension,
                                    const std::string& content) const {
        const std::string name = std::string(id()) + "-" + std::to_string(seed) + extension;
        const std::filesystem::path first = std::filesystem::path(_target.folder) / name;
        try {
            write_file(first.string(), content);
            return first.string();
        } catch (const OutputError&) {
            const auto other = std::filesystem::temp_directory_path() / name;
            write_file(other.string(), content);
            return other.string();
        }
    }

    const CheckContext& _context;
    const Target& _target;
    Findings& _findings;
    Input _input;
};

} // namespace

void check_random_actions(const CheckContext& context, Findings& findings) {
    RandomCheck(context, findings, Input::Actions).run();
}

void check_random_events(const CheckContext& context, Findings& findings) {
    RandomCheck(context, findings, Input::Events).run();
}

} // namespace minihost
