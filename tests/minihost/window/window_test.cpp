// The window's logic without a window: its layout, the views, what a click and a rubber band find,
// what the commands do to file and selection.

#include "minihost/model/OutputFile.h"
#include "minihost/model/SceneReader.h"
#include "minihost/window/Picking.h"
#include "minihost/window/SceneEditor.h"
#include "minihost/window/WindowLayout.h"
#include "tests/minihost/support/files.h"

#include <cmath>
#include <filesystem>
#include <gmock/gmock.h>
#include <sstream>

namespace minihost {
namespace {

namespace fs = std::filesystem;
using preview::Point;
using testing::ElementsAre;
using testing::IsEmpty;

// Two cards 200 left and right of the center, a card hidden behind the left one, a 2D layer, and a
// camera above.
const char* const wall = R"({"format": "minihost scene 1",
  "composition": {"name": "C", "width": 1000, "height": 600},
  "layers": [
    {"name": "Cam", "kind": "camera",
     "transform": {"point_of_interest": [500, 300, 0], "position": [500, -200, -1000]}},
    {"name": "Left", "kind": "solid", "three_d": true, "source": {"width": 100, "height": 100},
     "transform": {"position": [300, 300, 0], "anchor_point": [50, 50, 0]}},
    {"name": "Right", "kind": "solid", "three_d": true, "source": {"width": 100, "height": 100},
     "transform": {"position": [700, 300, 100], "anchor_point": [50, 50, 0]}},
    {"name": "Behind", "kind": "solid", "three_d": true, "source": {"width": 20, "height": 20},
     "transform": {"position": [300, 300, 50], "anchor_point": [10, 10, 0]}},
    {"name": "Flat", "kind": "solid", "source": {"width": 50, "height": 50},
     "transform": {"position": [500, 100, 0], "anchor_point": [25, 25, 0]}}],
  "selection": [1]})";

TEST(WindowLayout, FitsItsPartsTogetherAtAnySize) {
    for (const double width : {900.0, 901.0, 1280.0, 3000.0})
        for (const double height : {576.0, 777.0, 1500.0})
            for (const DockedSize& docked : {DockedSize{}, DockedSize{499, 448}}) {
                const WindowLayout at = window_layout(width, height, docked);
                EXPECT_EQ(at.status.y + at.status.height, height);
                EXPECT_EQ(at.status.width, width);
                EXPECT_EQ(at.list.y + at.list.height, at.status.y);
                EXPECT_LT(at.view.y + at.view.height, at.list.y);
                EXPECT_GE(at.view.height, 300);
                EXPECT_EQ(std::fmod(at.list.height - header_height, row_height), 0) << "whole rows";
                EXPECT_EQ(at.view.width, at.list.width);
                EXPECT_EQ(std::fmod(at.panel.x, 2), 0) << "a whole pixel at scale 1.5";
                EXPECT_EQ(at.dock.width > 0, docked.width > 0);
                if (docked.width == 0) continue;
                EXPECT_GE(at.dock.width, docked.width);
                EXPECT_GE(at.dock.height, docked.height);
                EXPECT_LT(at.view.width, at.dock.x);
            }
}

class Window : public testing::Test {
  protected:
    Window()
        : session(parse_scene(wall, "test"), {}, make_dialog_driver(), out,
                  [](const std::string&) {}),
          editor(session, folder / "test.json") {
        write_file(editor.path(), wall);
    }

    preview::DrawList draw_list(ViewKind kind) {
        editor.viewpoint.choose(kind);
        return preview::make_draw_list(editor.scene(),
                                       editor.viewpoint.framing(editor.scene(), 800, 500, 2));
    }
    // Where a point of the world is seen in the picture.
    static Point seen(const preview::DrawList& list, const preview::Vector& world) {
        return list.camera.project(list.camera.to_view(world));
    }
    std::string name(LayerId id) { return id ? editor.scene().find(id)->name : "-"; }
    std::vector<std::string> names(const std::vector<LayerId>& layers) {
        std::vector<std::string> all;
        for (const LayerId id : layers) all.push_back(name(id));
        return all;
    }
    LayerId layer(std::size_t row) { return editor.scene().layer_at(row).id; }

    TemporaryFolder temporary;
    const fs::path& folder = temporary.path;
    std::ostringstream out;
    Session session;
    SceneEditor editor;
};

TEST_F(Window, SideViewsShowTheirAxes) {
    const struct {
        ViewKind kind;
        preview::Vector right, up,
            nowhere; // steps in the world by the direction in which they are seen
    } cases[] = {{ViewKind::Front, {100, 0, 0}, {0, -100, 0}, {0, 0, 100}},
                 {ViewKind::Top, {100, 0, 0}, {0, 0, 100}, {0, 100, 0}},
                 {ViewKind::Left, {0, 0, -100}, {0, -100, 0}, {100, 0, 0}}};
    for (const auto& it : cases) {
        const preview::DrawList list = draw_list(it.kind);
        const preview::Vector middle{500, 300, 0};
        const Point start = seen(list, middle);
        EXPECT_NEAR(start.x, 800, 1e-6); // the middle of 800 by 500 points of 2 pixels
        EXPECT_NEAR(start.y, 500, 1e-6);
        const double step = 100 * editor.viewpoint.magnification(editor.scene(), 800, 500) * 2;
        const Point right = seen(list, middle + it.right), up = seen(list, middle + it.up);
        EXPECT_NEAR(right.x - start.x, step, 0.01);
        EXPECT_NEAR(right.y - start.y, 0, 0.01);
        EXPECT_NEAR(start.y - up.y, step, 0.01);
        const Point nowhere = seen(list, middle + it.nowhere);
        EXPECT_NEAR(nowhere.x, start.x, 0.01);
        EXPECT_NEAR(nowhere.y, start.y, 0.01);
    }
}

TEST_F(Window, EachViewHasItsOwnZoomPanAndOrbit) {
    preview::DrawList before = draw_list(ViewKind::Front);
    const preview::Vector corner{0, 0, 0};
    const Point fixed = seen(before, corner);
    editor.viewpoint.zoom(3, {fixed.x / 2 - 400, fixed.y / 2 - 250});
    EXPECT_NEAR(seen(draw_list(ViewKind::Front), corner).x, fixed.x, 1e-6);
    EXPECT_NEAR(seen(draw_list(ViewKind::Front), corner).y, fixed.y, 1e-6);
    editor.viewpoint.pan(10, -5);
    EXPECT_NEAR(seen(draw_list(ViewKind::Front), corner).x, fixed.x + 20, 1e-6);
    EXPECT_NEAR(seen(draw_list(ViewKind::Front), corner).y, fixed.y - 10, 1e-6);
    EXPECT_NEAR(seen(draw_list(ViewKind::Top), {500, 300, 0}).x, 800, 1e-6) << "unchanged";
    editor.viewpoint.choose(ViewKind::Front);
    editor.viewpoint.reset();
    EXPECT_NEAR(seen(draw_list(ViewKind::Front), corner).x, fixed.x, 1e-6);

    // From above, the farther point is seen higher; half a turn later, it is the nearer one.
    preview::DrawList custom = draw_list(ViewKind::Custom);
    const auto higher = [&] {
        return seen(custom, {500, 300, 300}).y < seen(custom, {500, 300, -300}).y;
    };
    EXPECT_TRUE(higher());
    editor.viewpoint.orbit(180, 0);
    custom = draw_list(ViewKind::Custom);
    EXPECT_FALSE(higher());
    editor.viewpoint.orbit(0, 1000);
    custom = draw_list(ViewKind::Custom);
    EXPECT_NEAR(custom.camera.axes.z.y, 1, 0.001) << "straight from above at most";
}

TEST_F(Window, AClickFindsWhatIsSeenAndABandWhatItTouches) {
    const preview::DrawList front = draw_list(ViewKind::Front);
    const auto at = [&](double x, double y) {
        return name(layer_at(front, seen(front, {x, y, 0})));
    };
    EXPECT_EQ(at(300, 300), "Left") << "hides the one behind it";
    EXPECT_EQ(at(345, 255), "Left");
    EXPECT_EQ(at(355, 300), "-");
    EXPECT_EQ(at(500, 100), "Flat");
    EXPECT_EQ(at(500, -200), "Cam");
    const auto band = [&](double x0, double y0, double x1, double y1) {
        return names(layers_touched(front, seen(front, {x0, y0, 0}), seen(front, {x1, y1, 0})));
    };
    EXPECT_THAT(band(700, 340, 320, 330), ElementsAre("Left", "Right"));
    EXPECT_THAT(band(280, 280, 305, 305), ElementsAre("Left", "Behind"));
    EXPECT_THAT(band(360, 200, 640, 400), IsEmpty());
    EXPECT_THAT(band(-900, -900, 1900, 1500),
                ElementsAre("Cam", "Left", "Right", "Behind", "Flat"));
    // From above the cards are edges, which are found a little beside them too.
    const preview::DrawList top = draw_list(ViewKind::Top);
    EXPECT_EQ(name(layer_at(top, seen(top, {260, 300, 5}))), "Left");
    EXPECT_EQ(name(layer_at(top, seen(top, {260, 300, 30}))), "-");
    EXPECT_THAT(names(layers_touched(top, seen(top, {200, 0, -20}), seen(top, {400, 0, 60}))),
                ElementsAre("Left", "Behind"));
    const preview::DrawList camera = draw_list(ViewKind::Camera);
    EXPECT_EQ(name(layer_at(camera, seen(camera, {700, 300, 100}))), "Right");
    EXPECT_EQ(name(layer_at(camera, seen(camera, {500, -200, -1000.1}))), "-")
        << "the scene's own camera";
}

TEST_F(Window, SelectsAsClicksDo) {
    const auto selection = [&] { return names(editor.scene().selection()); };
    editor.toggle(layer(3));
    EXPECT_THAT(selection(), ElementsAre("Left", "Behind"));
    editor.toggle(layer(1));
    EXPECT_THAT(selection(), ElementsAre("Behind"));
    const Selection kept = editor.scene().selection();
    editor.select_rows(4, 2, kept);
    EXPECT_THAT(selection(), ElementsAre("Behind", "Right", "Flat"));
    EXPECT_TRUE(editor.is_selected(layer(4)));
    const auto before = editor.display_state();
    editor.select_rows(2, 4, kept);
    EXPECT_EQ(editor.display_state(), before) << "nothing to redraw";
    editor.select({layer(0)});
    EXPECT_NE(editor.display_state(), before);
    EXPECT_THAT(selection(), ElementsAre("Cam"));
    EXPECT_FALSE(editor.is_selected(layer(4)));
    EXPECT_THAT(editor.status(), testing::HasSubstr("5 layers, 1 selected"));
    editor.select({});
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_FALSE(editor.has_changes()) << "selecting is no change to save";
}

TEST_F(Window, TracksUnsavedChangesAndKeepsThemWhenAFileFails) {
    EXPECT_EQ(editor.title(), "test.json");
    EXPECT_EQ(editor.undo_title(), "Undo");
    session.host().document.rename_layer(layer(1), "Other");
    EXPECT_EQ(editor.title(), "test.json (edited)");
    EXPECT_EQ(editor.undo_title(), "Undo Rename Layer");
    editor.perform("undo");
    EXPECT_FALSE(editor.has_changes());
    EXPECT_FALSE(editor.can_undo());
    EXPECT_EQ(editor.redo_title(), "Redo Rename Layer");
    editor.perform("redo");
    EXPECT_THROW(editor.save(folder / "none" / "x.json"), ActionError);
    EXPECT_THROW(editor.open(folder / "none.json"), ActionError);
    write_file(folder / "broken.json", "{");
    EXPECT_THROW(editor.open(folder / "broken.json"), ActionError);
    EXPECT_TRUE(editor.has_changes());
    EXPECT_EQ(editor.file_name(), "test.json");
    EXPECT_EQ(name(layer(1)), "Other");
    editor.save(folder / "other.json");
    EXPECT_EQ(editor.title(), "other.json");
    EXPECT_EQ(read_scene(folder / "other.json").layer_at(1).name, "Other");
    const auto before = editor.display_state();
    editor.open(folder / "test.json");
    EXPECT_EQ(editor.title(), "test.json");
    EXPECT_EQ(name(layer(1)), "Left");
    EXPECT_NE(editor.display_state().revision, before.revision);
}

} // namespace
} // namespace minihost
