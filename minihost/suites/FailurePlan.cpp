#include "minihost/suites/FailurePlan.h"

#include "minihost/model/Numbers.h"

#include <stdexcept>

namespace minihost {

namespace {

template <typename Number>
Number whole_number(const std::string& text, const std::string& all) {
    const auto number = parse_number<Number>(text);
    if (!number)
        throw std::invalid_argument("\"" + all + "\": \"" + text + "\" is no whole number");
    return *number;
}

} // namespace

PlannedFailure parse_failure(const std::string& text) {
    PlannedFailure failure;
    const std::size_t colon = text.find(':');
    failure.call = text.substr(0, colon);
    if (colon != std::string::npos) {
        const std::size_t second = text.find(':', colon + 1);
        failure.number =
            whole_number<std::int64_t>(text.substr(colon + 1, second - colon - 1), text);
        if (second != std::string::npos)
            failure.code = whole_number<std::int32_t>(text.substr(second + 1), text);
    }
    if (failure.number < 1)
        throw std::invalid_argument("\"" + text + "\": calls are counted from 1");
    if (const std::size_t prefix = failure.call.find(".AEGP_"); prefix != std::string::npos)
        failure.call.erase(prefix + 1, 5);
    return failure;
}

FailurePlan::FailurePlan(const std::vector<PlannedFailure>& failures) {
    for (const PlannedFailure& failure : failures)
        _planned[failure.call].codes[failure.number] = failure.code;
}

std::optional<std::int32_t> FailurePlan::count(const CallName& name) {
    const auto calls = _planned.find(std::string(name.suite) + "." + name.call);
    if (calls == _planned.end()) return std::nullopt;
    const auto code = calls->second.codes.find(++calls->second.made);
    if (code == calls->second.codes.end()) return std::nullopt;
    return code->second;
}

} // namespace minihost
