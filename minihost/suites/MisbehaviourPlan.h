// A host that misbehaves on request: calls succeed with corrupted results, or the scene changes
// between two calls.

#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <span>
#include <string>
#include <vector>

namespace minihost {

class Document;

// What is corrupted: a kind of result, or the scene.
enum class MisbehaviourKind { Handle, Count, Size, Name, Value, Scene };

struct Misbehaviour {
    const char* word; // "null-handles"
    MisbehaviourKind kind;
    const char* sentence; // what the host does
};
std::span<const Misbehaviour> misbehaviours();

struct PlannedMisbehaviour {
    const Misbehaviour* misbehaviour;
    std::int64_t number = 0; // of the result, or of the call for the scene; 0 for every one
};

// Parses "WHAT[:K]". Throws std::invalid_argument.
PlannedMisbehaviour parse_misbehaviour(const std::string& text);

class MisbehaviourPlan {
  public:
    explicit MisbehaviourPlan(const std::vector<PlannedMisbehaviour>& planned = {});

    bool is_on() const { return !_planned.empty(); }
    // How many results of a kind there have been, or calls for the scene.
    std::int64_t count(MisbehaviourKind kind) const;

    // Counts a result; returns what corrupts it, or null.
    const Misbehaviour* next(MisbehaviourKind kind);
    // Counts a call, and changes the scene before it if planned.
    void before_call(Document& document);

  private:
    std::map<const Misbehaviour*, std::set<std::int64_t>> _planned;
    std::map<MisbehaviourKind, std::int64_t> _counts;
};

} // namespace minihost
