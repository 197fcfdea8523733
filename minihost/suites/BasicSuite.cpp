#include "minihost/suites/BasicSuite.h"

#include "minihost/suites/CorruptedSuites.h"
#include "minihost/suites/ServeCall.h"
#include "minihost/suites/SuiteTable.h"

namespace minihost {

namespace {

constexpr int basic_version = 1;

// Null for a suite that the host lacks.
const void* functions_of(const Host& host, const char* name, A_long version) {
    const Suite* suite = find_suite(name, version);
    if (!suite) return nullptr;
    for (const std::string& word : host.options().without)
        if (suite->is_left_out_by(word)) return nullptr;
    return host.misbehaviour_plan.is_on() ? corrupted_functions(suite->functions)
                                          : suite->functions;
}

A_Err AcquireSuite(const char* name, A_long version, const void** suite) {
    return serve_call(
        {"SPBasic", basic_version, "AcquireSuite"},
        [&](CallArguments& it) { it.text("name", name).number("version", version); },
        [&](Host& host) -> A_Err {
            const void*& result = require(suite);
            const void* functions = functions_of(host, &require(name), version);
            if (!functions) return A_Err_MISSING_SUITE;
            host.count_acquired(name, version);
            result = functions;
            return 0;
        });
}

A_Err ReleaseSuite(const char* name, A_long version) {
    return serve_call(
        {"SPBasic", basic_version, "ReleaseSuite"},
        [&](CallArguments& it) { it.text("name", name).number("version", version); },
        [&](Host& host) {
            if (!host.count_released(&require(name), version))
                throw Misuse(std::string(name) + " " + std::to_string(version) +
                                 " released more often than acquired",
                             ViolationKind::Unbalanced);
        });
}

} // namespace

constexpr SPBasicSuite basic_suite{AcquireSuite, ReleaseSuite};

} // namespace minihost
