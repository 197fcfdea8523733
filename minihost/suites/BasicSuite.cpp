// The suite that is handed over: acquiring and releasing the others.

#include "minihost/suites/Serve.h"

namespace minihost {

namespace {

constexpr int basic_version = 1;

A_Err AcquireSuite(const char* name, A_long version, const void** suite) {
    return serve(
        {"SPBasic", basic_version, "AcquireSuite"},
        [&](Arguments& it) { it.text("name", name).number("version", version); },
        [&](Host& host) -> A_Err {
            const void*& result = need(suite);
            const void* functions = host.acquire(&need(name), version);
            if (!functions) return A_Err_MISSING_SUITE;
            result = functions;
            return 0;
        });
}

A_Err ReleaseSuite(const char* name, A_long version) {
    return serve(
        {"SPBasic", basic_version, "ReleaseSuite"},
        [&](Arguments& it) { it.text("name", name).number("version", version); },
        [&](Host& host) -> A_Err {
            if (!host.release(&need(name), version))
                throw Misuse(std::string(name) + " " + std::to_string(version) +
                                 " released more often than acquired",
                             FaultKind::Unbalanced);
            return 0;
        });
}

constexpr SPBasicSuite basic{AcquireSuite, ReleaseSuite};

} // namespace

const SPBasicSuite* Host::basic_suite() const {
    return &basic;
}

} // namespace minihost
