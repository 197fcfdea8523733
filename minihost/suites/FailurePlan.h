// Calls that fail on request: the K-th call of a name returns a code and does nothing.

#pragma once

#include "minihost/suites/CallLog.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace minihost {

struct PlannedFailure {
    std::string call; // "AEGP Stream Suite.SetStreamValue"
    std::int64_t number = 1;
    std::int32_t code = 4;
};

// Parses "SUITE.CALL[:K[:CODE]]". Throws std::invalid_argument. Does not check that the host has
// such a call.
PlannedFailure parse_failure(const std::string& text);

class FailurePlan {
  public:
    explicit FailurePlan(const std::vector<PlannedFailure>& failures = {});

    // Counts a call; returns its code if it has to fail. Inline, as every call comes here.
    std::optional<std::int32_t> next(const CallName& name) {
        if (_planned.empty()) return std::nullopt;
        return count(name);
    }

  private:
    std::optional<std::int32_t> count(const CallName& name);
    struct Calls {
        std::int64_t made = 0;
        std::map<std::int64_t, std::int32_t> codes; // by number
    };
    std::map<std::string, Calls> _planned; // only names with a failure
};

} // namespace minihost
