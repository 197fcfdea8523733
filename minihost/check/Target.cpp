#include "minihost/check/Target.h"

#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

#include <set>

namespace minihost {

namespace {

constexpr std::size_t small_scene_layers = 5;

// The first selected layers, and the first layer of each kind that none of them has; empty for a
// scene that is small already.
std::set<LayerId> layers_to_keep(const Scene& scene, std::size_t count) {
    if (scene.layer_count() <= count + 2) return {};
    std::set<LayerId> kept;
    std::set<LayerKind> kinds;
    for (const LayerId id : scene.selection())
        if (id && kept.size() < count && kept.insert(id).second) kinds.insert(scene.find(id)->kind);
    for (const Layer* it : scene.layers())
        if (kinds.insert(it->kind).second) kept.insert(it->id);
    return kept;
}

void make_small_scene(Target& target) {
    Scene scene = parse_scene(target.scene, "the scene");
    const std::size_t all = scene.layer_count();
    const std::set<LayerId> kept = layers_to_keep(scene, small_scene_layers);
    if (kept.empty()) {
        target.small_scene = target.scene;
        return;
    }
    Selection selection = scene.selection();
    std::erase_if(selection, [&](LayerId id) { return id && !kept.contains(id); });
    scene.select(std::move(selection));
    for (const Layer* it : scene.layers())
        if (!kept.contains(it->id)) scene.remove(it->id);
    target.small_scene = scene_text(Document(std::move(scene)));
    target.small_scene_note = std::to_string(kept.size()) + " of the scene's " +
                              std::to_string(all) + " layers were kept for these runs";
}

// All kinds of layers, with keyframes, most of them selected.
constexpr const char* built_in_scene = R"({"format": "minihost scene 1",
  "composition": {"name": "Comp 1", "width": 1280, "height": 720, "frame_rate": 25, "duration": 8, "time": 1},
  "layers": [
    {"name": "Title", "kind": "text", "three_d": true, "size": {"width": 300, "height": 60}},
    {"name": "Card 1", "kind": "solid", "three_d": true, "source": {"width": 200, "height": 120}},
    {"name": "Card 2", "kind": "footage", "three_d": true, "source": {"width": 120, "height": 200},
     "start": 0.5, "transform": {"position": [300, 200, -50], "rotation": [10, 20, 30]},
     "keyframes": {"position": [{"time": 0, "value": [300, 200, -50]}, {"time": 2, "value": [400, 200, 0]}]}},
    {"name": "Star", "kind": "shape", "three_d": true},
    {"name": "Background", "kind": "solid", "source": {"width": 1280, "height": 720}},
    {"name": "Light 1", "kind": "light"},
    {"name": "Camera 1", "kind": "camera"}
  ],
  "selection": [0, 1, 2, 3, 4, 6, "other"]
})";

} // namespace

Limits Target::limits() const {
    using std::chrono::seconds;
    const std::size_t layers = small_scene.empty() ? 0 : scene.size() / 400; // about
    const seconds limit{(2 + level + static_cast<int>(layers / 100)) * sanitizer_factor};
    return {20 * limit, limit};
}

void read_scenes(Target& target) {
    if (target.scene_file.empty()) {
        target.scene = built_in_scene;
    } else {
        target.scene = read_file(target.scene_file);
        parse_scene(target.scene, target.scene_file); // for errors with the file's name
    }
    make_small_scene(target);
}

} // namespace minihost
