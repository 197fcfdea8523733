// What the cells paint, read back from a bitmap; every host colour is different.

#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/AECells.h"
#include "ADMLibrary/ADM_Mac64/AEDrawerCell.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

#include <cmath>

namespace {

struct CellTest : testing::Test {
    Pool _pool;
    FakeHost _host;
};
using CellDeathTest = CellTest;

template <typename Cell>
Cell* new_cell(bool enabled = true, bool on = false) {
    Cell* cell = [[[Cell alloc] init] autorelease];
    [cell setEnabled:enabled];
    [cell setState:on];
    [cell setTitle:@""];
    return cell;
}

void paint(NSCell* cell, NSRect frame, bool pressed) {
    if (pressed)
        [cell highlight:NO withFrame:frame inView:nil]; // the flag is ignored
    else
        [cell drawWithFrame:frame inView:nil];
}

Rgb blend(Rgb below, Rgb above, double alpha) {
    const auto mix = [alpha](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * alpha));
    };
    return {mix(below.red, above.red), mix(below.green, above.green), mix(below.blue, above.blue)};
}

// A face under the sheen, a gradient from white at the top to black at the bottom, both 10% opaque;
// disabled faces have none.
Rgb face(short selector, double from_top, bool with_sheen = true) {
    const int light = static_cast<int>(255 * (1 - from_top));
    return blend(FakeHost::color(selector), {light, light, light}, with_sheen ? 0.1 : 0);
}

void expect_near(const Canvas& canvas, double x, double y, Rgb expected, int tolerance = 2) {
    const Rgb found = canvas.at(x, y);
    const int off =
        std::max({std::abs(found.red - expected.red), std::abs(found.green - expected.green),
                  std::abs(found.blue - expected.blue)});
    EXPECT_LE(off, tolerance) << "at (" << x << ", " << y << "): " << found << " instead of "
                              << expected;
}

void expect_where(const Canvas& canvas, Rgb color, bool is_there, std::vector<NSPoint> points) {
    for (const NSPoint& p : points)
        EXPECT_EQ(canvas.at(p.x, p.y) == color, is_there) << "at (" << p.x << ", " << p.y << ")";
}

} // namespace

// A button of {0, 0, 58, 20}: the face at {1, 1, 56, 19}, its outline over that, the bottom line
// from (0, 20) to (58, 20), the side edges 1 wide.
TEST_F(CellTest, APushButtonUsesTheColoursOfItsState) {
    struct Case {
        bool enabled, pressed;
        short face, edge, outline, title;
    };
    const Case cases[] = {{true, false, 8, 12, 7, 9},
                          {true, true, 15, 19, 14, 16},
                          {false, false, 29, 33, 28, 30},
                          {false, true, 29, 33, 28, 30}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.face);
        AEButtonCell* cell = new_cell<AEButtonCell>(c.enabled);
        [cell setTitle:@"HHHH"];
        Canvas canvas(60, 22);
        paint(cell, NSMakeRect(0, 0, 58, 20), c.pressed);
        for (double y : {4.0, 10.0, 16.0})
            expect_near(canvas, 5, y, face(c.face, (y - 1) / 19, c.enabled));
        const Rgb edge = FakeHost::color(c.edge);
        expect_where(canvas, edge, true, {{0.2, 20.2}, {57.8, 20.2}});
        expect_where(canvas, Canvas::kWhite, true, {{29, 20.7}, {59, 10}});
        // The sides, 20% opaque at the top, outside the outline, which covers half of them.
        expect_near(canvas, 0.2, 18.9, blend(Canvas::kWhite, edge, 0.95), 8);
        expect_near(canvas, 57.8, 1, blend(Canvas::kWhite, edge, 0.24), 8);
        expect_where(canvas, FakeHost::color(c.outline), true,
                     {{29, 0.7}, {0.7, 10}, {56.7, 10}, {29, 20.2}});
        const Rgb title = FakeHost::color(c.title);
        EXPECT_GT(canvas.count(NSMakeRect(20, 3, 18, 12), title), 100);
        EXPECT_EQ(canvas.count(NSMakeRect(2, 15, 54, 4), title), 0); // it is above the middle
        EXPECT_NEAR(canvas.count(NSMakeRect(10, 3, 19, 12), title),
                    canvas.count(NSMakeRect(29, 3, 19, 12), title), 60);
        expect_near(canvas, 29, 1.7, // the inner line, grey 204, is faint
                    blend(face(c.face, 0.04, c.enabled), {204, 204, 204}, 0.05));
    }
}

// In a frame of {0, 0, 16, 16} the box is {2, 0, 12, 12}; the tick goes (6, 4), (8, 8), (18, -4).
// Here everything is 4 lower, to show the tick's end.
TEST_F(CellTest, ACheckBoxIsABoxAboveTheMiddleWithATickBeyondIt) {
    struct Case {
        bool enabled, pressed, on;
        short face, outline, tick;
    };
    const Case cases[] = {{true, false, false, 8, 7, 9},
                          {true, true, true, 15, 14, 9},
                          {false, false, true, 29, 28, 23}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.face);
        Canvas canvas(24, 24);
        paint(new_cell<AECheckBoxCell>(c.enabled, c.on), NSMakeRect(0, 4, 16, 16), c.pressed);
        expect_where(canvas, FakeHost::color(c.outline), true, {{8, 4.7}, {2.7, 10}, {8, 16.2}});
        expect_where(canvas, Canvas::kWhite, true, {{8, 17}});
        expect_near(canvas, 11, 14, face(c.face, 0.9, c.enabled));
        const Rgb tick = FakeHost::color(c.tick);
        expect_where(canvas, tick, c.on, {{7, 10}, {13, 6}, {17, 1.2}});
        expect_where(canvas, tick, false, {{5, 10}, {5, 7}});
        EXPECT_EQ(canvas.count(tick) > 300, c.on);
    }
}

// In a frame of {0, 0, 16, 16} the circle is {3, 3, 10, 10} and the dot {6, 6, 4, 4}.
TEST_F(CellTest, ARadioButtonIsACircleWithADot) {
    for (bool enabled : {true, false}) {
        for (bool on : {true, false}) {
            SCOPED_TRACE(testing::Message() << enabled << on);
            Canvas canvas(16, 16);
            paint(new_cell<AERadioCell>(enabled, on), NSMakeRect(0, 0, 16, 16), false);
            const Rgb dot = FakeHost::color(enabled ? 9 : 30);
            expect_where(canvas, dot, on, {{8, 8}, {6.3, 8}, {8, 9.7}});
            expect_where(canvas, dot, false, {{5.7, 8}, {8, 10.3}, {6.2, 6.2}});
            for (double y : {5.0, 11.0})
                expect_near(canvas, 8, y, face(enabled ? 8 : 29, (y - 3) / 10, enabled));
            expect_near(canvas, 8, 2.7,
                        blend(Canvas::kWhite, FakeHost::color(7), enabled ? 1 : 0.33));
            expect_where(canvas, Canvas::kWhite, true, {{8, 2.3}, {3.5, 3.5}});
        }
    }
}

// In a frame of {0, 0, 100, 20} the text has {7, ., 73, 20}, the arrow is (86, 7), (94, 7),
// (90, 13) and the separator goes from (78, 3) to (78, 17).
TEST_F(CellTest, APopUpShowsItsSelectedEntryAndAnArrow) {
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    NSMenuItem* entry = [[[NSMenuItem alloc] init] autorelease];
    [entry setTitle:@"HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH"];
    [menu insertItem:entry atIndex:0];
    for (bool enabled : {true, false}) {
        SCOPED_TRACE(enabled);
        AEPopupButtonCell* cell = new_cell<AEPopupButtonCell>(enabled);
        const NSRect before_arrow = NSMakeRect(2, 2, 75, 16);
        const Rgb text = FakeHost::color(enabled ? 2 : 23);
        {
            Canvas empty(100, 22);
            paint(cell, NSMakeRect(0, 0, 100, 20), false);
            EXPECT_EQ(empty.count(before_arrow, text), 0);
        }
        [cell setMenu:menu];
        Canvas canvas(100, 22);
        paint(cell, NSMakeRect(0, 0, 100, 20), false);
        EXPECT_GT(canvas.count(before_arrow, text), 1000);
        EXPECT_EQ(canvas.count(NSMakeRect(2, 2, 5, 16), text), 0);
        expect_where(canvas, text, true, {{86.7, 7.2}, {93.3, 7.2}, {90, 12.5}, {90, 10}});
        expect_where(canvas, text, false,
                     {{86.7, 8.8}, {93.3, 8.8}, {90, 13.3}, {90, 6.7}, {81, 10}});
        const Rgb line = FakeHost::color(enabled ? 7 : 28);
        expect_where(canvas, line, true, {{78, 3.2}, {78, 10}, {78, 16.8}});
        expect_where(canvas, line, false, {{78, 2.7}, {78, 17.3}});
        expect_near(canvas, 82, 10, face(enabled ? 8 : 29, 0.5, enabled), 3);
    }
}

TEST_F(CellTest, APictureIsPaintedByItsItemsProcedureWhichMayThrow) {
    iADMItem item;
    AEDrawerCell* cell = [[[AEDrawerCell alloc] initWithADMItem:&item] autorelease];
    Canvas canvas(20, 20);
    item._drawProc = [](_Opaque_ADMItem*, _Opaque_ADMDrawer* drawer) {
        const Rect r = {2, 3, 10, 12};
        sADMDrawer->SetADMColor(drawer, 16);
        sADMDrawer->FillRect(drawer, &r);
        throw 5;
    };
    testing::internal::CaptureStderr();
    paint(cell, NSMakeRect(0, 0, 20, 20), false);
    EXPECT_NE(testing::internal::GetCapturedStderr().find("draw procedure"), std::string::npos);
    EXPECT_EQ(canvas.count(NSMakeRect(3, 2, 9, 8), FakeHost::color(45)), 9 * 8 * 64);
}

TEST_F(CellDeathTest, APictureCellNeedsItsItem) {
    AEDrawerCell* cell = [[[AEDrawerCell alloc] initWithADMItem:nullptr] autorelease];
    EXPECT_EXIT(paint(cell, NSMakeRect(0, 0, 9, 9), false), testing::KilledBySignal(SIGABRT),
                "__item.*drawWithFrame:inView:.*ADMLibrary/ADM_Mac64, line 1546");
}
