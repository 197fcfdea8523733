// The command line, parsed and checked.

#pragma once

#include "minihost/check/CheckRunner.h"
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
    std::string plugin, out, preview, panel, calls; // files; empty if not given
    double scale = 2;
    bool has_scale = false;  // whether --scale was given
    std::string screenshot;  // of the window
    int frames = 0;          // the window closes after so many; 0: when the user quits
    std::string window_size; // "WIDTHxHEIGHT" in points
    double window_width = 0, window_height = 0; // 0: not given
    HostOptions host;
    CheckOptions check;
};

// The request, or an exit status: help was printed (0), or an error message for bad arguments (2).
struct ParsedCommandLine {
    std::optional<Request> request;
    int status = 0;
};
ParsedCommandLine parse_command_line(int count, const char* const* arguments);

} // namespace minihost
