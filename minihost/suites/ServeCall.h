// What every function of a suite does: find the host, log the call, fail if a failure is planned,
// do its work, and let no exception out.

#pragma once

#include "minihost/suites/CallArguments.h"

#include <exception>
#include <string>
#include <type_traits>

namespace minihost {

// What a pointer of the plug-in's points to. Throws Misuse for null.
template <typename Type>
Type& require(Type* pointer) {
    if (!pointer) throw Misuse("a null pointer");
    return *pointer;
}

// `describe` writes the arguments to a CallArguments; `body` works on a Host and returns the
// result, or nothing for success. Both may throw.
template <typename Describe, typename Body>
A_Err serve_call(const CallName& name, const Describe& describe, const Body& body) noexcept {
    Host* host = Host::current();
    if (!host) return misuse_error; // no callback is running
    try {
        host->count_call();
        std::size_t logged = 0;
        if (host->log.is_on()) {
            CallArguments arguments(*host);
            describe(arguments);
            logged = host->log.begin(name, arguments.take());
        }
        A_Err result = host_error;
        if (const auto planned = host->failure_plan.next(name)) {
            result = *planned;
        } else {
            try {
                if constexpr (std::is_void_v<decltype(body(*host))>) {
                    body(*host);
                    result = A_Err_NONE;
                } else {
                    result = body(*host);
                }
            } catch (const Misuse& misuse) {
                host->report_misuse(name, misuse);
                result = misuse_error;
            } catch (const std::exception& error) {
                host->report(std::string(name.suite) + "." + name.call + ": " + error.what());
            }
        }
        if (logged) host->log.end(logged, result);
        return result;
    } catch (...) {
        return host_error; // not even a message could be made
    }
}

// For a call without arguments to log.
template <typename Body>
A_Err serve_call(const CallName& name, const Body& body) noexcept {
    return serve_call(
        name, [](CallArguments&) {}, body);
}

} // namespace minihost
