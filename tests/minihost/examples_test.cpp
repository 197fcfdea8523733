// The example scenes: each can be read, and has something selected that can be arranged.

#include "minihost/model/SceneReader.h"
#include "minihost/preview/Preview.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>

namespace minihost {
namespace {

// The names of the scenes in a folder, without their extension.
std::set<std::string> scenes_in(const std::filesystem::path& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() == ".json") names.insert(entry.path().stem().string());
    }
    return names;
}

TEST(Examples, HaveSomethingToArrangeAndToSee) {
    const std::filesystem::path folder = EXAMPLES;
    const std::string readme = read_file((folder / "README.md").string());
    const std::set<std::string> names = scenes_in(folder);
    ASSERT_GE(names.size(), 6u);
    for (const std::string& name : names) {
        SCOPED_TRACE(name);
        EXPECT_NE(readme.find("`" + name + ".json`"), std::string::npos) << "in README.md";
        const Scene scene = read_scene((folder / (name + ".json")).string());
        const std::string picture = encode_preview(scene, PreviewFormat::Svg, 1);
        int placeable = 0, seen = 0;
        for (const LayerId id : scene.selection()) {
            const Layer* layer = id ? scene.find(id) : nullptr;
            if (!layer || layer->kind == LayerKind::Camera || layer->kind == LayerKind::Light ||
                !layer->three_d) {
                continue;
            }
            ++placeable;
            seen += picture.find("<title>" + layer->name + "</title>") != std::string::npos;
        }
        EXPECT_GE(placeable, 1);
        EXPECT_EQ(seen, placeable) << "all selected layers are in the picture";
    }
}

TEST(Examples, CoverTheSituationsTheyAreNamedFor) {
    const auto read = [](const char* name) {
        return read_scene(std::string(EXAMPLES) + "/" + name + ".json");
    };
    const auto count = [](const Scene& scene, LayerKind kind) {
        const std::vector<const Layer*> layers = scene.layers();
        return std::count_if(layers.begin(), layers.end(),
                             [&](const Layer* layer) { return layer->kind == kind; });
    };
    EXPECT_EQ(count(read("cards"), LayerKind::Solid), 12);
    EXPECT_EQ(count(read("photographs"), LayerKind::Footage), 200);
    EXPECT_EQ(count(read("without-camera"), LayerKind::Camera), 0);
    EXPECT_EQ(count(read("title-wall"), LayerKind::Camera), 2);
    EXPECT_EQ(read("one-layer").selection().size(), 1u);
    const Selection mixed = read("newsroom").selection();
    EXPECT_TRUE(std::count(mixed.begin(), mixed.end(), LayerId{0})) << "an item that is no layer";
}

} // namespace
} // namespace minihost
