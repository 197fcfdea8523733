// The table of the suites that the host serves.

#pragma once

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

namespace minihost {

struct Suite {
    const char* name;
    int version;
    const char* without; // the word of --without for it; null for a suite that is not optional
    const void* functions;
    std::initializer_list<const char*> calls; // without "AEGP_"

    // By that word, or by its name and version.
    bool is_left_out_by(std::string_view word) const;
};

std::span<const Suite> suites();

// Null for a suite that the host does not have.
const Suite* find_suite(std::string_view name, int version);

// Whether the host has a call "SUITE.CALL".
bool is_host_call(std::string_view suite_and_call);

// Whether the call releases something, which the host counts as held when the call fails.
bool is_release_call(std::string_view suite_and_call);

// Whether any suite is left out by the word.
bool is_without_word(std::string_view word);

} // namespace minihost
