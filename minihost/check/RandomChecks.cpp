// Random users. What goes wrong is made short, written as a file of actions, and told with the
// command that repeats it.

#include "minihost/check/Groups.h"
#include "minihost/check/RandomRun.h"
#include "minihost/check/Shrink.h"
#include "minihost/model/OutputFile.h"

#include <algorithm>
#include <filesystem>
#include <set>
#include <unistd.h>

namespace minihost {

namespace {

using Clock = std::chrono::steady_clock;
using Way = RandomUser::Way;

constexpr std::size_t most_told = 3; // of ways to go wrong

std::vector<std::string> lines_of(const std::vector<Deed>& deeds) {
    std::vector<std::string> lines;
    for (const Deed& deed : deeds) lines.insert(lines.end(), deed.begin(), deed.end());
    return lines;
}

std::string kind_of(const Deed& deed) {
    return deed[0].substr(0, deed[0].find(' '));
}

class RandomCheck {
  public:
    RandomCheck(const CheckContext& context, Findings& findings, Way way)
        : _context(context), _subject(context.subject), _findings(findings), _way(way) {}

    void run() {
        RandomRuns runs(_context, limits());
        std::vector<std::pair<std::uint64_t, RandomResult>> wrong;
        const auto users = static_cast<std::size_t>(2 * _subject.level);
        for (std::size_t i = 0; i < users; ++i) {
            const std::uint64_t seed = _subject.seed * 1000 + i;
            runs.use(seed, _way, deeds_of_user(), [&, seed](RandomResult result) {
                _context.place.enter("user " + std::to_string(seed));
                _findings.count_run();
                if (result.wrong) wrong.emplace_back(seed, std::move(result));
            });
        }
        runs.finish();
        std::vector<Wrong> told;
        for (const auto& [seed, result] : wrong) {
            const bool is_known = std::find(told.begin(), told.end(), *result.wrong) != told.end();
            if (is_known || told.size() == most_told) continue;
            told.push_back(*result.wrong);
            tell(seed, result);
        }
        note_cut(_subject, _findings);
    }

  private:
    std::size_t deeds_of_user() const {
        return 1000 + 500 * static_cast<std::size_t>(_subject.level);
    }
    Limits limits() const {
        Limits limits = _subject.limits();
        limits.whole = std::chrono::minutes(_subject.level * sanitizer_factor);
        return limits;
    }

    RandomResult repeat(const std::vector<Deed>& deeds) {
        RandomRuns runs(_context, limits());
        RandomResult result;
        runs.repeat(deeds, [&](RandomResult it) { result = std::move(it); });
        runs.finish();
        _context.place.enter("shrinking " + std::to_string(deeds.size()) + " deeds");
        return result;
    }

    // Most kinds of deeds have nothing to do with it: all of one kind are left out at once.
    std::vector<Deed> without_kinds(const RandomResult& first, Clock::time_point until) {
        std::vector<Deed> left = first.deeds;
        std::set<std::string> kinds;
        for (const Deed& it : left) kinds.insert(kind_of(it));
        for (const std::string& kind : kinds) {
            if (Clock::now() >= until) break;
            std::vector<Deed> tried = left;
            std::erase_if(tried, [&](const Deed& it) { return kind_of(it) == kind; });
            if (repeat(tried).wrong == first.wrong) left = std::move(tried);
        }
        return left;
    }

    // What is left repeats it; lines that cannot be done are gone.
    std::vector<Deed> shortened(const RandomResult& first) {
        const auto until = Clock::now() + std::chrono::seconds(20 + 10 * _subject.level);
        const std::vector<Deed> some = without_kinds(first, until);
        const auto chosen = [&](const StepIndices& indices) {
            std::vector<Deed> deeds;
            for (const std::size_t i : indices) deeds.push_back(some[i]);
            return deeds;
        };
        const StepIndices left = shrink(
            some.size(),
            [&](const StepIndices& tried) { return repeat(chosen(tried)).wrong == first.wrong; },
            until);
        const RandomResult last = repeat(chosen(left));
        // It may hang on something that is not in the deeds; then all of them are told.
        if (last.wrong != first.wrong) return first.deeds;
        return repeat(last.deeds).wrong == first.wrong ? last.deeds : chosen(left);
    }

    void tell(std::uint64_t seed, const RandomResult& result) {
        const std::vector<std::string> all = lines_of(result.deeds);
        const std::vector<std::string> lines = lines_of(shortened(result));
        const std::string actions = write_file_beside(seed, ".actions", actions_text(seed, lines));
        std::string scene = _subject.scene_file;
        if (scene.empty() || !_subject.cut.empty())
            scene = write_file_beside(seed, ".json", _subject.small_scene);
        const bool crashed = result.wrong->ending == Ending::Kind::Crashed;
        _findings.add(crashed ? Outcome::Crash : Outcome::Fail, result.text);
        _findings.note("seed " + std::to_string(_subject.seed) + ": " + std::to_string(all.size()) +
                       " actions, of which " + std::to_string(lines.size()) + " are enough");
        _findings.note("to repeat them: minihost run " + shell_word(scene) + " " +
                       shell_word(actions) + " --plugin " + shell_word(_subject.plugin));
    }

    std::string actions_text(std::uint64_t seed, const std::vector<std::string>& lines) const {
        std::string text = "# What user " + std::to_string(seed) + " of " + id() + " did.\n";
        for (const std::string& line : lines) text += line + "\n";
        return text;
    }

    const char* id() const { return _way == Way::Actions ? "random.actions" : "random.events"; }

    // Where the report goes, or else where there is room.
    std::string write_file_beside(std::uint64_t seed, const char* extension,
                                  const std::string& content) const {
        const std::string name = std::string(id()) + "-" + std::to_string(seed) + extension;
        const std::filesystem::path first = std::filesystem::path(_subject.folder) / name;
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
    const Subject& _subject;
    Findings& _findings;
    Way _way;
};

} // namespace

void check_random_actions(const CheckContext& context, Findings& findings) {
    RandomCheck(context, findings, Way::Actions).run();
}

void check_random_events(const CheckContext& context, Findings& findings) {
    RandomCheck(context, findings, Way::Events).run();
}

} // namespace minihost
