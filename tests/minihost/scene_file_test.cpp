// Scene files: what is read, what is rejected and where, and what is written.

#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/model/SceneWriter.h"
#include "tests/minihost/support/files.h"

#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

std::string error_of(std::string_view text) {
    try {
        parse_scene(text, "bad.json");
    } catch (const SceneError& error) {
        return error.what();
    }
    return "accepted";
}

std::string scene_with(const std::string& members) {
    return R"({"format": "minihost scene 1", )" + members + "}";
}
std::string one_layer(const std::string& members) {
    return scene_with(R"("layers": [{"name": "A", )" + members + "}]");
}

TEST(SceneReader, RejectsBadFilesWithThePath) {
    struct Case {
        std::string text, path, cause;
    };
    const std::string solid = R"("kind": "solid", "source": {"width": 9, "height": 9})";
    const Case cases[] = {
        {"", "line 1, column 1", "unexpected end of input"},
        {"{\n  \"format\": \"minihost scene 1\",,\n}", "line 2, column 32", "syntax error"},
        {"{\"composition\":\n{\"name\": \"\xC3\xA4\" 1}}", "line 2, column 14", "syntax error"},
        {"{\"format\": \"minihost scene 1\"} x", "line 1, column 32", "syntax error"},
        {"{\"format\": \"\xff\"}", "line 1, column 13", "UTF-8"},
        {"[]", "", "a scene must be an object"},
        {"7", "", "a scene must be an object"},
        {"{}", "format", "missing"},
        {R"({"format": "minihost scene 2"})", "format", "not \"minihost scene 2\""},
        {R"({"format": "a\nb\u007f"})", "format", R"(not "a\u000ab\u007f")"},
        {R"({"a\tb": 1})", R"(a\u0009b)", "unknown field"},
        {R"({"format": 1})", "format", "must be a text"},
        {scene_with(R"("layer": [])"), "layer", "unknown field"},
        {scene_with(R"("active": "none", "active": "none")"), "active", "given twice"},
        {scene_with(R"("active": "comp")"), "active", "not \"comp\""},
        {scene_with(R"("layers": {})"), "layers", "must be an array"},
        {scene_with(R"("layers": 3)"), "layers", "must be an array"},
        {scene_with(R"("layers": [[]])"), "layers[0]", "must be an object"},
        {scene_with(R"("composition": 1)"), "composition", "must be an object"},
        {scene_with(R"("composition": {"width": 0})"), "composition.width",
         "from 1 to 30000, not 0"},
        {scene_with(R"("composition": {"height": 30001})"), "composition.height", "not 30001"},
        {scene_with(R"("composition": {"height": 10.5})"), "composition.height", "not 10.5"},
        {scene_with(R"("composition": {"frame_rate": 0})"), "composition.frame_rate",
         "must be from"},
        {scene_with(R"("composition": {"time": 1e9})"), "composition.time", "must be from"},
        {scene_with(R"("composition": {"duration": "1"})"), "composition.duration",
         "must be a number"},
        {scene_with("\"composition\": {\"time\": 1e999}"), "line 1, column", "number overflow"},
        {scene_with("\"composition\": {\"time\": NaN}"), "line 1, column", "syntax error"},
        {scene_with(R"("layers": [{"kind": "text"}])"), "layers[0].name", "missing"},
        {scene_with(R"("layers": [{"name": "A"}])"), "layers[0].kind", "missing"},
        {one_layer(R"("kind": "null")"), "layers[0].kind", "unknown kind \"null\""},
        {one_layer(R"("kind": "solid")"), "layers[0].source", "must have one"},
        {one_layer(R"("kind": "solid", "source": {"width": 9})"), "layers[0].source.height",
         "missing"},
        {one_layer(R"("kind": "footage", "source": {"width": -1, "height": 9})"),
         "layers[0].source.width", "not -1"},
        {one_layer(R"("kind": "text", "source": {"width": 9, "height": 9})"), "layers[0].source",
         "not a text layer"},
        {one_layer(R"("kind": "camera", "size": {"width": 9, "height": 9})"), "layers[0].size",
         "not a camera layer"},
        {one_layer(solid + R"(, "color": "red")"), "layers[0].color", "must be a colour"},
        {one_layer(solid + R"(, "color": "#12345g")"), "layers[0].color", "must be a colour"},
        {one_layer(solid + R"(, "three_d": 1)"), "layers[0].three_d", "true or false"},
        {one_layer(solid + R"(, "start": null)"), "layers[0].start", "must be a number"},
        {one_layer(solid + R"(, "name": "B")"), "layers[0].name", "given twice"},
        {scene_with(R"("layers": [{"name": "A\u0000", "kind": "text"}])"), "layers[0].name",
         "zero character"},
        {one_layer(solid + R"(, "transform": {"position": [1, 2]})"),
         "layers[0].transform.position", "three numbers"},
        {one_layer(solid + R"(, "transform": {"scale": [1, 2, 3, 4]})"),
         "layers[0].transform.scale", "three numbers"},
        {one_layer(solid + R"(, "transform": {"scale": [1, "2", 3]})"),
         "layers[0].transform.scale[1]", "must be a number"},
        {one_layer(solid + R"(, "transform": {"point_of_interest": [1, 2, 3]})"),
         "layers[0].transform.point_of_interest", "only cameras"},
        {one_layer(solid + R"(, "keyframes": {"anchor_point": []})"),
         "layers[0].keyframes.anchor_point", "unknown field"},
        {one_layer(solid + R"(, "keyframes": {"rotation_x": [{"time": 1, "value": [1, 2, 3]}]})"),
         "layers[0].keyframes.rotation_x[0].value", "must be a number"},
        {one_layer(solid + R"(, "keyframes": {"scale": [{"time": 1, "value": 3}]})"),
         "layers[0].keyframes.scale[0].value", "three numbers"},
        {one_layer(solid + R"(, "keyframes": {"rotation_z": [{"time": 2, "value": 3},
                                                               {"time": 1, "value": 3}]})"),
         "layers[0].keyframes.rotation_z[1].time", "later than"},
        {one_layer(solid + R"(, "keyframes": {"rotation_z": [{"value": 3}]})"),
         "layers[0].keyframes.rotation_z[0].time", "missing"},
        {scene_with(R"("selection": [0])"), "selection[0]", "no such layer (there are 0)"},
        {one_layer(R"("kind": "text")").insert(1, R"("selection": [0, "other", -1], )"),
         "selection[2]", "no such layer (there are 1)"},
        {scene_with(R"("selection": ["none"])"), "selection[0]", "or \"other\""},
        {scene_with(R"("undo": [1])"), "undo[0]", "must be a text"},
    };
    for (const Case& it : cases) {
        const std::string message = error_of(it.text);
        EXPECT_THAT(message, StartsWith("bad.json: " + it.path)) << it.text;
        EXPECT_THAT(message, HasSubstr(it.cause)) << it.text;
        EXPECT_EQ(message.find('\n'), std::string::npos) << message;
    }
}

TEST(SceneReader, FillsInTheDefaultsWhateverTheOrderOfTheFields) {
    const Scene scene = parse_scene(R"({
        "selection": [1, "other", 1],
        "layers": [
          {"kind": "solid", "name": "Card", "source": {"width": 200, "height": 120}},
          {"kind": "camera", "name": "Camera"},
          {"kind": "text", "name": "Title", "transform": {"position": [1, 2, 3]}}],
        "composition": {"width": 400, "height": 300},
        "format": "minihost scene 1"})",
                                    "good.json");
    EXPECT_EQ(scene.composition, (Composition{.name = "Comp 1",
                                              .width = 400,
                                              .height = 300,
                                              .frame_rate = 25,
                                              .duration = 10,
                                              .time = 0}));
    EXPECT_EQ(scene.active, ActiveItem::Composition);
    ASSERT_EQ(scene.layer_count(), 3u);
    const Layer& card = scene.layer_at(0);
    EXPECT_EQ(card.transform, (Transform{{100, 60, 0}, {200, 150, 0}, {100, 100, 100}, {}, {}}));
    EXPECT_FALSE(card.is_3d());
    const Layer& camera = scene.layer_at(1);
    EXPECT_EQ(camera.transform.anchor_point, (Vec3{200, 150, 0}));
    EXPECT_TRUE(camera.is_3d());
    EXPECT_EQ(scene.layer_at(2).transform.position, (Vec3{1, 2, 3}));
    EXPECT_THAT(scene.selection(), ElementsAre(camera.id, 0u, camera.id));
    EXPECT_LT(card.id, camera.id);
}

const char* const full_scene = R"({"format": "minihost scene 1",
    "composition": {"name": "Größe \"1\"\n", "width": 30000, "height": 1, "frame_rate": 29.97,
                    "duration": 1e-3, "time": 0.1},
    "active": "footage",
    "layers": [
      {"name": "", "kind": "footage", "three_d": true, "color": "#0aFf10",
       "source": {"width": 1, "height": 30000}, "start": -2.5,
       "transform": {"anchor_point": [-0.0, 1e22, 5e-324],
                     "position": [0.1, 123456789012345678, 1.7976931348623157e308],
                     "scale": [33.3, -100, 0], "orientation": [720, 1, 2], "rotation": [1, 2, 3]},
       "keyframes": {"position": [{"time": -1, "value": [1, 2, 3]}, {"time": 0.1, "value": [4, 5, 6]}],
                     "rotation_y": [{"time": 1.5, "value": 7.25}]}},
      {"name": "C", "kind": "camera", "transform": {"point_of_interest": [1, 2, 3]}},
      {"name": "S", "kind": "shape", "size": {"width": 5, "height": 6}},
      {"name": "L", "kind": "light"}],
    "selection": ["other", 3, 0, 0],
    "undo": ["One", "Two"]})";

TEST(SceneWriter, WritesWhatReadsBackExactly) {
    const Document document(parse_scene(full_scene, "full.json"));
    const std::string text = scene_text(document);
    const Document again(parse_scene(text, "again.json"));
    EXPECT_EQ(scene_text(again), text);

    const Scene& scene = again.scene();
    EXPECT_EQ(scene.composition.name, "Größe \"1\"\n");
    EXPECT_EQ(scene.composition.frame_rate, 29.97);
    EXPECT_EQ(scene.active, ActiveItem::Footage);
    const Layer& footage = scene.layer_at(0);
    EXPECT_EQ(footage.color, (Color{10, 255, 16}));
    EXPECT_EQ(footage.start, -2.5);
    EXPECT_TRUE(std::signbit(footage.transform.anchor_point[0]));
    EXPECT_EQ(footage.transform.anchor_point[2], 5e-324);
    EXPECT_EQ(footage.transform.position,
              (Vec3{0.1, 123456789012345678.0, 1.7976931348623157e308}));
    EXPECT_THAT(*footage.keys_of(Stream::Position),
                ElementsAre(Keyframe{-1, {1, 2, 3}}, Keyframe{0.1, {4, 5, 6}}));
    EXPECT_THAT(*footage.keys_of(Stream::RotationY), ElementsAre(Keyframe{1.5, {7.25, 0, 0}}));
    EXPECT_EQ(scene.layer_at(2).size, (Size{5, 6})); // for previews only
    EXPECT_EQ(scene.layer_at(2).transform.anchor_point, (Vec3{0, 0, 0}));
    EXPECT_THAT(scene.selection(), ElementsAre(0u, scene.layer_at(3).id, footage.id, footage.id));
    EXPECT_THAT(again.undo_names(), ElementsAre("One", "Two"));
}

class OutputFile : public testing::Test {
  protected:
    TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
};

TEST_F(OutputFile, ReplacesAFileWholeAndKeepsItsModeAndLinks) {
    const fs::path file = folder / "a.json", link = folder / "link.json";
    write_file(file, "old");
    fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
    fs::create_symlink(file, link);
    write_file(link, "new");
    EXPECT_EQ(read_file(file), "new");
    EXPECT_TRUE(fs::is_symlink(link));
    EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(temporary.entries(), 2u);
}

TEST_F(OutputFile, LeavesNothingBehindIfItCannotBeWritten) {
    EXPECT_THROW(write_file(folder / "none" / "a.json", "x"), OutputError);
    EXPECT_THROW(write_file(folder, "x"), OutputError);
    EXPECT_EQ(temporary.entries(), 0u);
    EXPECT_THROW(write_file("/dev/full", "x"), OutputError);
}

TEST_F(OutputFile, ErrorsOfReadingHaveTheReasonOfTheSystem) {
    try {
        read_scene(folder / "none.json");
        FAIL();
    } catch (const SceneError& error) {
        EXPECT_THAT(error.what(), HasSubstr("none.json: cannot be read: No such file"));
    }
    EXPECT_THROW(read_scene(folder), SceneError);
}

} // namespace
} // namespace minihost
