// What a check finds: outcomes with an example of each.

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace minihost {

enum class Outcome { Pass, Warn, Skip, Fail, Crash }; // from good to bad
const char* name_of(Outcome outcome);

// The worst outcome counts; a check that finds nothing passes.
class Findings {
  public:
    void fail(const std::string& text) { add(Outcome::Fail, text); }
    void warn(const std::string& text) { add(Outcome::Warn, text); }
    void crash(const std::string& text) { add(Outcome::Crash, text); }
    void skip(const std::string& reason) { add(Outcome::Skip, reason); }
    // Equal texts are counted; the first example is kept.
    void add(Outcome outcome, const std::string& text, const std::string& example = "");
    void add(const Findings& others);
    // A remark, which changes no outcome.
    void note(const std::string& text) { _notes.push_back(text); }
    void count_run() { ++_runs; }

    Outcome outcome() const { return _outcome; }
    std::size_t runs() const { return _runs; }
    // Findings, worst first and not too many, then notes.
    std::vector<std::string> lines() const;

    // For transport between processes.
    std::string to_json() const;
    static Findings from_json(const std::string& json);

  private:
    struct Finding {
        Outcome outcome;
        std::string text, example;
        std::size_t times;
    };
    Outcome _outcome = Outcome::Pass;
    std::vector<Finding> _findings;
    std::map<std::string, std::size_t> _index; // of findings, by text
    std::vector<std::string> _notes;
    std::size_t _runs = 0;
};

} // namespace minihost
