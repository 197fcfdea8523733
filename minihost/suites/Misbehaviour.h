// A host that misbehaves: it answers with success and nonsense, or its scene changes between two
// calls. Which of its answers do so is counted by the kind of what they give: handles, counts,
// sizes, names, values; changes of the scene are counted by the calls of the plug-in.

#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace minihost {

class Document;

enum class AnswerKind { Handle, Count, Size, Name, Value, Scene };

struct Misdeed {
    const char* word; // "null-handles"
    AnswerKind kind;
    const char* sentence; // what the host does
};
std::span<const Misdeed> misdeeds();

// A misdeed, and the number of the answer of its kind that does it: 0 for every one.
struct PlannedMisdeed {
    const Misdeed* misdeed;
    std::int64_t number = 0;
};

// Reads "WHAT[:K]". Throws std::invalid_argument.
PlannedMisdeed parse_misdeed(const std::string& text);

class Misbehaviour {
  public:
    explicit Misbehaviour(const std::vector<PlannedMisdeed>& planned = {});

    bool is_on() const { return !_planned.empty(); }
    // How many answers of a kind there were.
    std::int64_t answers(AnswerKind kind) const;

    // Counts an answer; what it is to do, if anything.
    const Misdeed* next(AnswerKind kind);
    // Counts a call of the plug-in, before which the scene may change.
    void before_call(Document& document);

  private:
    std::map<const Misdeed*, std::set<std::int64_t>> _planned;
    std::map<AnswerKind, std::int64_t> _answers;
};

} // namespace minihost
