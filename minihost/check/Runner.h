// All checks that are asked for, each in a child process; what comes of them on standard output and
// as a file.

#pragma once

#include "minihost/check/Check.h"

#include <string>
#include <vector>

namespace minihost {

struct CheckOptions {
    std::string json;              // a file; empty when not asked for
    std::vector<std::string> only; // ids; empty for all
    bool list = false;
    int level = 5;
    std::uint64_t seed = 1;
};

// Whether no check fails or crashes. Throws SceneError for a bad scene, OutputError when the report
// cannot be written, std::runtime_error for an id that is none.
bool run_checks(const std::string& plugin, const std::string& scene_file,
                const CheckOptions& options);

} // namespace minihost
