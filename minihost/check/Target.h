// What is checked: a plug-in with a scene, and how thoroughly.

#pragma once

#include "minihost/check/Child.h"

#include <cstdint>
#include <string>

namespace minihost {

struct Target {
    std::string plugin;     // the module's file
    std::string scene_file; // empty for the built-in scene
    std::string scene;      // text of a scene file
    // The same with few layers, for checks whose time is calls times runs.
    std::string small_scene;
    std::string small_scene_note; // what was left out; empty if nothing
    std::string folder = ".";     // for files beside the report
    int level = 5;                // from 1 to 10
    std::uint64_t seed = 1;

    // For one run of the plug-in.
    Limits limits() const;
};

// Sets the scenes from `scene_file`. Throws SceneError.
void read_scenes(Target& target);

} // namespace minihost
