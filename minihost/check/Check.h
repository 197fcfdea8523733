// The checks: one table of rows that the command line, the runner, the report and the tests all go
// through. A check has an id that never changes and a sentence that says what holds when it passes;
// it runs in a child process and puts down what it finds.
//
// To add one: a function in the file of its group, declared in Groups.h, and a row in Checks.cpp.
//
// So that one fault is told by one check alone: a check that interferes (a call fails, a suite is
// missing) tells only faults of kinds that the same scenario does not have without it, and
// scenarios that crash by themselves are left out.

#pragma once

#include "minihost/check/Child.h"
#include "minihost/check/Rehearsal.h"

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace minihost {

// What is checked, and how hard.
struct Subject {
    std::string plugin;     // the module's file
    std::string scene_file; // empty for the scene that is built in
    std::string scene;      // a scene file's text
    // The same with few layers, for what takes as long as calls times runs; `cut` says what was
    // left out, and is empty when nothing was.
    std::string small_scene, cut;
    std::string folder = "."; // for what is written beside the report
    int level = 5;            // from 1 to 10
    std::uint64_t seed = 1;

    // Of one life of the plug-in.
    Limits limits() const;
};

enum class Outcome { Pass, Warn, Skip, Fail, Crash }; // the worse the later
const char* name_of(Outcome outcome);

// What a check finds. The worst outcome counts; a check that finds nothing passes.
class Findings {
  public:
    void fail(const std::string& what) { add(Outcome::Fail, what); }
    void warn(const std::string& what) { add(Outcome::Warn, what); }
    void crash(const std::string& what) { add(Outcome::Crash, what); }
    // Nothing could be tried, because of that. No line beside it.
    void skip(const std::string& reason) { add(Outcome::Skip, reason); }
    void add(Outcome outcome, const std::string& what);
    // The same with an example, of which the first is told; further ones are counted.
    void add(Outcome outcome, const std::string& what, const std::string& example);
    // All that another process has found.
    void add(const Findings& others);
    // What is worth knowing and no fault.
    void note(const std::string& what) { _notes.push_back(what); }
    void count_run() { ++_runs; }

    Outcome outcome() const { return _outcome; }
    std::size_t runs() const { return _runs; }
    // Findings first, then notes; the first some dozens.
    std::vector<std::string> lines() const;

    // From one process to another.
    std::string text() const;
    static Findings parse(const std::string& text);

  private:
    struct Line {
        Outcome outcome;
        std::string what, example;
        std::size_t times;
    };
    Outcome _outcome = Outcome::Pass;
    std::vector<Line> _lines;
    std::map<std::string, std::size_t> _index; // of lines, by what
    std::vector<std::string> _notes;
    std::size_t _runs = 0;
};

struct CheckContext {
    const Subject& subject;
    const Rehearsal& rehearsal;
    Place& place; // to be entered at every step; its runs are the progress
};

// What a plug-in must be able to do before a check makes sense; it is skipped otherwise.
enum class Needs {
    Nothing,
    Start, // it starts
    Life,  // and lives through at least one scenario
};

struct Check {
    const char* id; // "group.words-with-hyphens"
    const char* sentence;
    int least_level;
    Needs needs;
    void (*run)(const CheckContext&, Findings&);

    std::string_view group() const {
        const std::string_view all = id;
        return all.substr(0, all.find('.'));
    }
};

std::span<const Check> checks();
// Null when there is none.
const Check* find_check(std::string_view id);

} // namespace minihost
