// The suites that the host can serve, as one table: their names and versions, the words by which
// they can be left out, their calls.

#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace minihost {

struct Suite {
    const char* name;
    int version;
    const char* without; // the word of --without that leaves it out; null when nothing does
    const void* functions;
    std::initializer_list<const char*> calls; // without "AEGP_"

    bool is_left_out_by(std::string_view word) const;
};

std::span<const Suite> suites();

// Null when there is none.
const Suite* find_suite(std::string_view name, int version);

// Whether "SUITE.CALL" is something that a plug-in can call.
bool is_call_of_host(std::string_view suite_and_call);

// Whether the call gives something back that was taken before: when it fails, the host still counts
// that as taken.
bool gives_back(std::string_view suite_and_call);

// Whether it is a word of --without: that of an optional suite, or any suite's name and version.
bool is_missing_part(std::string_view word);

} // namespace minihost
