// What the cells paint, read back from a bitmap in which every host colour is another.

#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/AEButton.h"
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

constexpr Rgb kWhite = {255, 255, 255};

// Within what rounding does to a blend.
bool near(Rgb a, Rgb b, int tolerance) {
    return std::abs(a.red - b.red) <= tolerance && std::abs(a.green - b.green) <= tolerance &&
           std::abs(a.blue - b.blue) <= tolerance;
}

Rgb blend(Rgb below, Rgb above, double alpha) {
    const auto mix = [alpha](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * alpha));
    };
    return {mix(below.red, above.red), mix(below.green, above.green), mix(below.blue, above.blue)};
}

// A face under the sheen, which goes from white at its top to black at its bottom, a tenth strong.
Rgb sheen(short selector, double from_top) {
    const int light = static_cast<int>(255 * (1 - from_top));
    return blend(FakeHost::color(selector), {light, light, light}, 0.1);
}

void expect_near(const Canvas& canvas, double x, double y, Rgb expected, int tolerance = 2) {
    const Rgb found = canvas.at(x, y);
    EXPECT_TRUE(near(found, expected, tolerance))
        << "at (" << x << ", " << y << "): " << found << " instead of " << expected;
}

// The faint light that lies on the last outline.
constexpr Rgb kInnerLight = {204, 204, 204};

} // namespace

// A button of {0, 0, 58, 20}: the face at {1, 1, 56, 18}, its outline over that, the bottom line
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
        const NSRect frame = NSMakeRect(0, 0, 58, 20);
        if (c.pressed)
            canvas.highlight(cell, frame, false); // the flag is not asked
        else
            canvas.draw(cell, frame);

        for (double y : {4.0, 10.0, 16.0})
            expect_near(canvas, 5, y,
                        c.enabled ? sheen(c.face, (y - 1) / 18) : FakeHost::color(c.face));
        EXPECT_EQ(canvas.at(29, 20.2), FakeHost::color(c.edge));
        EXPECT_EQ(canvas.at(29, 20.7), kWhite);
        EXPECT_EQ(canvas.at(59, 10), kWhite);
        // The sides: an edge that begins a fifth strong, outside the outline, which covers half.
        expect_near(canvas, 0.2, 18.9, blend(kWhite, FakeHost::color(c.edge), 0.95), 8);
        expect_near(canvas, 57.8, 1, blend(kWhite, FakeHost::color(c.edge), 0.24), 8);
        EXPECT_EQ(canvas.at(29, 0.7), FakeHost::color(c.outline));
        EXPECT_EQ(canvas.at(0.7, 10), FakeHost::color(c.outline));
        expect_near(canvas, 56.7, 10, FakeHost::color(c.outline));
        EXPECT_GT(canvas.count(NSMakeRect(20, 3, 18, 14), FakeHost::color(c.title)), 100);
        expect_near(
            canvas, 29, 1.7,
            blend(c.enabled ? sheen(c.face, 0.04) : FakeHost::color(c.face), kInnerLight, 0.05));
    }
}

TEST_F(CellTest, AnyOtherStateIsNormalAndATitleMayBeMissing) {
    for (int state : {-1, 3, 99}) {
        Canvas canvas(60, 22);
        DrawAEButton(NSMakeRect(0, 0, 58, 20), nil, state);
        EXPECT_EQ(canvas.at(29, 0.7), FakeHost::color(7));
        EXPECT_EQ(canvas.count(NSMakeRect(0, 0, 60, 22), FakeHost::color(9)), 0);
    }
}

TEST_F(CellTest, ATitleIsCentredAndALittleAboveTheMiddle) {
    AEButtonCell* cell = new_cell<AEButtonCell>();
    [cell setTitle:@"H"];
    Canvas canvas(60, 22);
    canvas.draw(cell, NSMakeRect(0, 0, 58, 20));
    const Rgb ink = FakeHost::color(9);
    const int left = canvas.count(NSMakeRect(10, 2, 19, 16), ink);
    const int right = canvas.count(NSMakeRect(29, 2, 19, 16), ink);
    EXPECT_GT(left, 0);
    EXPECT_NEAR(left, right, 0.25 * left);
    EXPECT_EQ(canvas.count(NSMakeRect(2, 16, 54, 3), ink), 0);
}

// In a frame of {0, 0, 16, 16} the box is {2, 0, 12, 12}; the tick goes (6, 4), (8, 8), (18, -4).
TEST_F(CellTest, ACheckBoxIsABoxAboveTheMiddleWithATickBeyondIt) {
    struct Case {
        bool enabled, pressed, on;
        short face, outline, tick;
    };
    const Case cases[] = {{true, false, false, 8, 7, 9},
                          {true, false, true, 8, 7, 9},
                          {true, true, true, 15, 14, 9},
                          {false, false, true, 29, 28, 23},
                          {false, true, false, 29, 28, 23}};
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.enabled << c.pressed << c.on);
        AECheckBoxCell* cell = new_cell<AECheckBoxCell>(c.enabled, c.on);
        Canvas canvas(24, 24);
        const NSRect frame = NSMakeRect(0, 4, 16, 16); // moved down by 4, to see the tick's end
        if (c.pressed)
            canvas.highlight(cell, frame, true);
        else
            canvas.draw(cell, frame);
        EXPECT_EQ(canvas.at(8, 4.7), FakeHost::color(c.outline));
        EXPECT_EQ(canvas.at(2.7, 10), FakeHost::color(c.outline));
        EXPECT_EQ(canvas.at(8, 17), kWhite);
        expect_near(canvas, 11, 14, c.enabled ? sheen(c.face, 9 / 10.0) : FakeHost::color(c.face));
        const Rgb tick = FakeHost::color(c.tick);
        const NSPoint on_tick[] = {{7, 10}, {13, 6}, {17, 1.2}};
        for (const NSPoint& p : on_tick) EXPECT_EQ(canvas.at(p.x, p.y) == tick, c.on) << p.x;
        EXPECT_NE(canvas.at(5, 10), tick);
        EXPECT_EQ(canvas.count(NSMakeRect(0, 0, 24, 24), tick) > 300, c.on);
    }
}

// In a frame of {0, 0, 16, 16} the circle is {3, 3, 10, 10} and the dot {6, 6, 4, 4}.
TEST_F(CellTest, ARadioButtonIsACircleWithADot) {
    for (bool enabled : {true, false}) {
        for (bool on : {true, false}) {
            SCOPED_TRACE(testing::Message() << enabled << on);
            Canvas canvas(16, 16);
            canvas.draw(new_cell<AERadioCell>(enabled, on), NSMakeRect(0, 0, 16, 16));
            const Rgb dot = FakeHost::color(enabled ? 9 : 30);
            const NSPoint inside[] = {{8, 8}, {6.3, 8}, {8, 9.7}};
            for (const NSPoint& p : inside) EXPECT_EQ(canvas.at(p.x, p.y) == dot, on) << p.x;
            const NSPoint outside[] = {{5.7, 8}, {8, 10.3}, {6.2, 6.2}};
            for (const NSPoint& p : outside) EXPECT_NE(canvas.at(p.x, p.y), dot) << p.x;
            for (double y : {5.0, 11.0})
                expect_near(canvas, 8, y, enabled ? sheen(8, (y - 3) / 10) : FakeHost::color(29));
            expect_near(canvas, 8, 2.7,
                        enabled ? FakeHost::color(7) : blend(kWhite, FakeHost::color(7), 0.33));
            EXPECT_EQ(canvas.at(8, 2.3), kWhite);
            EXPECT_EQ(canvas.at(3.5, 3.5), kWhite);
        }
    }
}

// In a frame of {0, 0, 100, 20} the text has {7, ., 73, 20}, the arrow is (86, 7), (94, 7),
// (90, 13) and the separator goes from (78, 3) to (78, 17).
TEST_F(CellTest, APopUpShowsItsSelectedEntryAndAnArrow) {
    NSMenu* menu = [[[NSMenu alloc] initWithTitle:@""] autorelease];
    [menu addItemWithTitle:@"HHHHHHHHHHHHHHHHHHHHHHHHHHHHHH" action:nil keyEquivalent:@""];
    for (bool enabled : {true, false}) {
        SCOPED_TRACE(enabled);
        AEPopupButtonCell* cell = new_cell<AEPopupButtonCell>(enabled);
        const NSRect frame = NSMakeRect(0, 0, 100, 20);
        const Rgb text = FakeHost::color(enabled ? 2 : 23);
        const NSRect before_arrow = NSMakeRect(2, 2, 75, 16);
        Canvas empty(100, 22);
        empty.draw(cell, frame);
        EXPECT_EQ(empty.count(before_arrow, text), 0);
        [cell setMenu:menu];
        Canvas canvas(100, 22);
        canvas.draw(cell, frame);
        EXPECT_GT(canvas.count(before_arrow, text), 1000);
        EXPECT_EQ(canvas.count(NSMakeRect(2, 2, 5, 16), text), 0);

        const NSPoint inside[] = {{86.7, 7.2}, {93.3, 7.2}, {90, 12.5}, {90, 10}};
        const NSPoint outside[] = {{86.7, 8.8}, {93.3, 8.8}, {90, 13.3}, {90, 6.7}, {81, 10}};
        for (const NSPoint& p : inside) EXPECT_EQ(canvas.at(p.x, p.y), text) << p.x << "," << p.y;
        for (const NSPoint& p : outside) EXPECT_NE(canvas.at(p.x, p.y), text) << p.x << "," << p.y;

        const Rgb line = FakeHost::color(enabled ? 7 : 28);
        for (double y : {3.2, 10.0, 16.8}) EXPECT_EQ(canvas.at(78, y), line);
        EXPECT_NE(canvas.at(78, 2.7), line);
        EXPECT_NE(canvas.at(78, 17.3), line);
        expect_near(canvas, 82, 10, enabled ? sheen(8, 0.5) : FakeHost::color(29), 3);
    }
}

TEST_F(CellTest, APictureIsPaintedByItsItemsProcedureAndMayThrow) {
    iADMItem item;
    AEDrawerCell* cell = [[[AEDrawerCell alloc] initWithADMItem:&item] autorelease];
    Canvas canvas(20, 20);
    canvas.draw(cell, NSMakeRect(0, 0, 20, 20));
    EXPECT_EQ(canvas.count(NSMakeRect(0, 0, 20, 20), kWhite), 160 * 160);
    item._drawProc = [](_Opaque_ADMItem*, _Opaque_ADMDrawer* drawer) {
        const Rect r = {2, 3, 10, 12};
        sADMDrawer->SetADMColor(drawer, 16);
        sADMDrawer->FillRect(drawer, &r);
        throw 5;
    };
    testing::internal::CaptureStderr();
    canvas.draw(cell, NSMakeRect(0, 0, 20, 20));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("draw procedure"), std::string::npos);
    EXPECT_EQ(canvas.at(3.1, 2.1), FakeHost::color(45));
    EXPECT_EQ(canvas.count(NSMakeRect(0, 0, 20, 20), FakeHost::color(45)), 9 * 8 * 64);
}

TEST_F(CellDeathTest, APictureCellNeedsItsItem) {
    Canvas canvas(9, 9);
    AEDrawerCell* cell = [[[AEDrawerCell alloc] initWithADMItem:nullptr] autorelease];
    EXPECT_EXIT(canvas.draw(cell, NSMakeRect(0, 0, 9, 9)), testing::KilledBySignal(SIGABRT),
                "__item.*drawWithFrame:inView:.*ADMLibrary/ADM_Mac64, line 1546");
}
