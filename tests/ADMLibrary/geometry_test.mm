#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <cmath>

namespace {

using GeometryTest = ToolkitTest;

Rect frame_of(NSView* view) {
    return adm::rect_of([view frame]);
}

// The size of a text in the small font: its width, rounded up, plus the point size, and its height.
Point text_size(NSString* text) {
    NSFont* font = GetMiniSystemFont();
    const NSSize size =
        [text sizeWithAttributes:[NSDictionary
                                     dictionaryWithObjectsAndKeys:font, NSFontAttributeName, nil]];
    return {static_cast<std::int16_t>(size.height),
            static_cast<std::int16_t>(std::ceil(size.width) + [font pointSize])};
}

void set_local(_Opaque_ADMItem* item, const Rect& r) {
    sADMItem->SetLocalRect(item, &r);
}

} // namespace

TEST_F(GeometryTest, FramesAreTruncatedPartByPart) {
    const std::pair<NSRect, Rect> cases[] = {
        {{{10.9, 0}, {5.9, 1}}, {0, 10, 1, 15}},
        {{{-10.9, -0.5}, {5.9, 3.99}}, {0, -10, 3, -5}},
        {{{40000, 0}, {10, 10}}, {0, -25536, 10, -25526}},
        {{{1e300, NAN}, {-1e300, 7}}, {0, -1, 7, -1}},
    };
    for (const auto& [frame, rect] : cases) EXPECT_EQ(adm::rect_of(frame), rect);
    const NSRect frame = adm::frame_of({5, 40, 25, 30});
    EXPECT_TRUE(NSEqualPoints(frame.origin, NSMakePoint(40, 5)));
    EXPECT_TRUE(NSEqualSizes(frame.size, NSMakeSize(-10, 20)));
}

TEST_F(GeometryTest, LocalRectanglesKeepTheCorner) {
    _Opaque_ADMItem* slider = add(kADMSliderType, {40, 10, 60, 120});
    set_local(slider, {0, 0, 20, 100});
    EXPECT_EQ(bounds(slider), (Rect{40, 10, 60, 110}));
    set_local(slider, {5, -5, 25, 95});
    EXPECT_EQ(bounds(slider), (Rect{45, 5, 65, 105}));
    _Opaque_ADMItem* nothing = add(kADMPicturePushButtonType, {1, 2, 30, 40});
    EXPECT_EQ(bounds(nothing), (Rect{0, 0, 0, 0}));
    EXPECT_EQ(best(nothing), (Point{0, 0}));
    set_local(nothing, {3, 4, 5, 6});
    EXPECT_EQ(adm::record(nothing)->_bounds, (Rect{3, 4, 5, 6}));
}

TEST_F(GeometryTest, TextsAreSizedByTheirTextAndButtonsByTheirFrame) {
    _Opaque_ADMItem* text = add_text(kADMTextStaticType, "From Center", {20, 30, 20, 30});
    EXPECT_EQ(bounds(text), (Rect{20, 30, 20, 30}));
    EXPECT_EQ(best(text), text_size(@"From Center"));
    EXPECT_EQ(best(add_text(kADMTextEditType, "12345")), text_size(@"12345"));
    EXPECT_EQ(best(add_text(kADMTextPushButtonType, "A long title", {5, 5, 25, 63})),
              (Point{20, 58}));
}

TEST_F(GeometryTest, ACheckBoxHasItsTextRightOfAnEighteenPointSquare) {
    for (const char* type : {kADMTextCheckBoxType, kADMTextRadioButtonType}) {
        SCOPED_TRACE(type);
        _Opaque_ADMItem* item = add_text(type, "Use Comp Center", {100, 20, 118, 150});
        const Point text = text_size(@"Use Comp Center");
        const std::int16_t bottom = 100 + std::max<int>(18, text.v);
        EXPECT_EQ(frame_of(control_of(item)), (Rect{100, 20, bottom, 38}));
        EXPECT_EQ(frame_of(label_of(item)), (Rect{102, 39, bottom, 150}));
        EXPECT_EQ(bounds(item), (Rect{100, 20, bottom, 150}));

        const Point wanted = best(item);
        EXPECT_EQ(wanted.h, 39 + text.h - 20);
        EXPECT_EQ(wanted.v, std::max<int>(bottom - 100, 2 + text.v));
        set_local(item, {0, 0, wanted.v, wanted.h});
        EXPECT_EQ(bounds(item).right, 20 + wanted.h);
        EXPECT_EQ(frame_of(label_of(item)).left, 39);
    }
}

TEST_F(GeometryTest, AFramesTitleCoversTheTopOfItsRectangle) {
    _Opaque_ADMItem* frame = add_text(kADMFrameType, "Distance", {155, 7, 322, 306});
    const std::int16_t bottom = 155 + text_size(@"Distance").v;
    EXPECT_EQ(frame_of(label_of(frame)), (Rect{155, 7, bottom, 306}));
    EXPECT_EQ(adm::record(frame)->_bounds, (Rect{155, 7, bottom, 306}));
    NSView* box = [[view_of(dialog()) subviews] objectAtIndex:0];
    EXPECT_EQ(frame_of(box), (Rect{155, 7, 322, 306}));
    EXPECT_EQ(adm::record(frame)->_box, nil);
}
