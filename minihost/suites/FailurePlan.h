// Calls that are to fail: the K-th of a name returns a code and does nothing.

#pragma once

#include "minihost/suites/CallLog.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace minihost {

// Read from "SUITE.CALL[:K[:CODE]]".
struct Failure {
    std::string call; // "AEGP Stream Suite.SetStreamValue"
    std::int64_t number = 1;
    std::int32_t code = 4;
};

// Throws std::invalid_argument. Whether there is such a call is not checked.
Failure parse_failure(const std::string& text);

class FailurePlan {
  public:
    explicit FailurePlan(const std::vector<Failure>& failures = {});

    // Counts a call; its code when it is to fail. In line, as every call comes by.
    std::optional<std::int32_t> next(const CallName& name) {
        if (_planned.empty()) return std::nullopt;
        return count(name);
    }

  private:
    std::optional<std::int32_t> count(const CallName& name);
    struct Calls {
        std::int64_t made = 0;
        std::map<std::int64_t, std::int32_t> codes;
    };
    std::map<std::string, Calls> _planned; // only the names that are to fail some time
};

} // namespace minihost
