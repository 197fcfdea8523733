#include "minihost/check/Subject.h"

#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"

#include <set>

namespace minihost {

namespace {

// How many layers stay for what takes calls times runs.
constexpr std::size_t most_kept = 5;

// The first selected layers, and the first layers of a kind that has none among them; nothing when
// the scene is as small already.
std::set<LayerId> layers_to_keep(const Scene& scene, std::size_t most) {
    if (scene.layer_count() <= most + 2) return {};
    std::set<LayerId> kept;
    std::set<LayerKind> kinds;
    for (const LayerId id : scene.selection())
        if (id && kept.size() < most && kept.insert(id).second) kinds.insert(scene.find(id)->kind);
    for (const Layer* it : scene.layers())
        if (kinds.insert(it->kind).second) kept.insert(it->id);
    return kept;
}

void cut_scene(Subject& subject) {
    Scene scene = parse_scene(subject.scene, "the scene");
    const std::size_t all = scene.layer_count();
    const std::set<LayerId> kept = layers_to_keep(scene, most_kept);
    if (kept.empty()) {
        subject.small_scene = subject.scene;
        return;
    }
    Selection selection = scene.selection();
    std::erase_if(selection, [&](LayerId id) { return id && !kept.contains(id); });
    scene.select(std::move(selection));
    for (const Layer* it : scene.layers())
        if (!kept.contains(it->id)) scene.remove(it->id);
    subject.small_scene = scene_text(Document(std::move(scene)));
    subject.cut = std::to_string(kept.size()) + " of the scene's " + std::to_string(all) +
                  " layers were kept for these runs";
}

// A composition with something of everything: 3D solids, a text, a shape and a camera selected, a
// layer in the plane, a light, keys.
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

Limits Subject::limits() const {
    using std::chrono::seconds;
    const std::size_t layers = small_scene.empty() ? 0 : scene.size() / 400; // about so many
    const seconds step{(2 + level + static_cast<int>(layers / 100)) * sanitizer_factor};
    return {20 * step, step};
}

void read_scenes(Subject& subject) {
    if (subject.scene_file.empty()) {
        subject.scene = built_in_scene;
    } else {
        subject.scene = read_file(subject.scene_file);
        parse_scene(subject.scene, subject.scene_file); // for its errors, by the file's name
    }
    cut_scene(subject);
}

} // namespace minihost
