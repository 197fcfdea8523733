// Runs checks, each in a child process, and reports their results.

#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace minihost {

struct CheckOptions {
    std::string json;              // the report's file; empty for none
    std::vector<std::string> only; // ids; empty for all
    bool list = false;
    int level = 5;
    std::uint64_t seed = 1;
};

// False when a check fails or crashes. Throws SceneError for a bad scene, OutputError when the
// report cannot be written, std::runtime_error for an unknown id.
bool run_checks(const std::string& plugin, const std::string& scene_file,
                const CheckOptions& options);

} // namespace minihost
