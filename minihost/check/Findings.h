// What a check has found: outcomes, worst first, with an example of each.

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace minihost {

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

} // namespace minihost
