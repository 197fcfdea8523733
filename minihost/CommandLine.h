// The command line: what is asked for, checked as far as it can be before anything is done.

#pragma once

#include "minihost/check/Runner.h"
#include "minihost/suites/Host.h"

#include <optional>
#include <string>
#include <vector>

namespace minihost {

enum class Verb { Apply, Run, Check, Show };

struct Request {
    Verb verb = Verb::Apply;
    std::string scene;
    std::string actions;                            // a file of them; "-" is standard input
    std::vector<std::string> sets;                  // NAME=VALUE
    std::string plugin, out, preview, panel, calls; // files; empty when not asked for
    double scale = 2;
    bool has_scale = false;  // it was told
    std::string screenshot;  // of the window
    int frames = 0;          // after which the window closes; 0: when the user quits
    std::string window_size; // "WIDTHxHEIGHT" in points
    double window_width = 0, window_height = 0; // 0: not given
    HostOptions host;
    CheckOptions check;
};

// What was asked for, or the exit status when nothing is left to do: help was printed (0), or the
// arguments are bad and it was said why (2).
struct ParsedCommandLine {
    std::optional<Request> request;
    int status = 0;
};
ParsedCommandLine parse_command_line(int count, const char* const* arguments);

} // namespace minihost
