// What is checked: a plug-in in a scene, and how hard.

#pragma once

#include "minihost/check/Child.h"

#include <cstdint>
#include <string>

namespace minihost {

struct Subject {
    std::string plugin;     // the module's file
    std::string scene_file; // empty for the scene that is built in
    std::string scene;      // a scene file's text
    // The same with few layers, for what takes as long as calls times runs; `cut` says what was
    // left out, and is empty when nothing was.
    std::string small_scene, cut;
    std::string folder = "."; // for what is written beside the report
    int level = 5;            // from 1 to 10
    std::uint64_t seed = 1;

    // Of one life of the plug-in.
    Limits limits() const;
};

// Fills in the scenes: from a file, or the built-in one when `scene_file` is empty. Throws
// SceneError for a bad file.
void read_scenes(Subject& subject);

} // namespace minihost
