// The results of checks as text for people and as JSON for programs.

#pragma once

#include "minihost/check/Check.h"

#include <string>
#include <vector>

namespace minihost {

struct CheckResult {
    const Check* check;
    Findings findings;
    double seconds;
};

// "pass   load.entry   The module is ... 0.01 s", with the findings on lines below.
std::string result_text(const CheckResult& result);
// "25 checks: 24 passed, 1 failed (4.1 s)"
std::string summary_text(const std::vector<CheckResult>& results, double seconds);
std::string report_json(const Target& target, const std::vector<CheckResult>& results);

} // namespace minihost
