#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <AppKit/NSDisplayStandIn.h>

namespace {

using DialogTest = ToolkitTest;
using DialogDeathTest = ToolkitTest;

} // namespace

TEST_F(DialogTest, StylesChooseTheWindow) {
    const std::string masks = "111199011091-119"; // by style; style 12 has no window
    for (int style = 0; style < 16; ++style) {
        if (masks[style] == '-') continue;
        _Opaque_ADMDialog* dialog = make_window(style);
        EXPECT_EQ([adm::record(dialog)->_window styleMask], masks[style] - '0' + 0u) << style;
        sADMDialog->Destroy(dialog);
    }
}

TEST_F(DialogTest, APanelFillsTheHostsViewAndIsVisibleWithIt) {
    NSView* view = view_of(dialog());
    EXPECT_EQ([view superview], [_window contentView]);
    EXPECT_TRUE([view isFlipped]);
    [_window setContentSize:NSMakeSize(320, 200)];
    EXPECT_EQ(adm::rect_of([view frame]), (Rect{0, 0, 200, 320}));

    EXPECT_TRUE(sADMDialog->IsVisible(dialog()));
    EXPECT_FALSE(sADMDialog->IsEnabled(dialog()));
    [_window orderOut:nil];
    EXPECT_FALSE(sADMDialog->IsVisible(dialog()));
    [_window orderFront:nil];
    [view removeFromSuperview];
    EXPECT_FALSE(sADMDialog->IsVisible(dialog()));
}

TEST_F(DialogTest, AWindowIsShownWithNoItemHiddenByItsTitleBar) {
    _Opaque_ADMDialog* dialog = make_window(3);
    const Rect placed = {100, 50, 300, 350};
    sADMDialog->SetBoundsRect(dialog, &placed);
    EXPECT_EQ(adm::rect_of([adm::record(dialog)->_window frame]), placed);
    EXPECT_EQ(bounds(dialog), placed);
    const Rect low = {180, 10, 199, 100};
    sADMItem->Create(dialog, 1, kADMTextPushButtonType, &low, nullptr, nullptr, 0);
    EXPECT_FALSE(sADMDialog->IsVisible(dialog));
    sADMDialog->Show(dialog, true);
    EXPECT_TRUE(sADMDialog->IsVisible(dialog) && sADMDialog->IsEnabled(dialog));
    EXPECT_EQ([view_of(dialog) frame].size.height, 200);
    const Rect shown = bounds(dialog);
    sADMDialog->Show(dialog, true);
    EXPECT_EQ(bounds(dialog), shown);
    sADMDialog->Show(dialog, false); // behind the others, but visible
    EXPECT_TRUE(sADMDialog->IsVisible(dialog));
    sADMDialog->Destroy(dialog);
}

TEST_F(DialogTest, APanelReportsOneSize) {
    dialog();
    A_LPoint sizes[2] = {{-1, -1}, {-1, -1}};
    A_long count = 9;
    _functions.GetSnapSizes(nullptr, sizes, &count);
    EXPECT_EQ(count, 9);
    _functions.GetSnapSizes(_refcon, sizes, &count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(sizes[0].x, 0);

    const Rect rect = {10, 20, 460, 521};
    sADMDialog->SetBoundsRect(dialog(), &rect);
    const Rect local = {0, 0, 450, 502};
    sADMDialog->SetLocalRect(dialog(), &local);
    EXPECT_EQ(bounds(dialog()), (Rect{10, 20, 460, 522}));
    _functions.GetSnapSizes(_refcon, sizes, &count);
    EXPECT_EQ(sizes[0].x, 502);
    EXPECT_EQ(sizes[0].y, 450);
    EXPECT_EQ(sizes[1].x, -1);
}

TEST_F(DialogTest, TitlesGoToTheHostAsTheyAreAndToWindowsAsMacRoman) {
    sADMDialog->SetText(dialog(), "caf\x8e");
    EXPECT_EQ(FakeHost::panel_title, "caf\x8e");
    const std::string name(300, 'n');
    _Opaque_ADMDialog* other = sADMDialog->Create(nullptr, name.c_str(), 0, 3, nullptr, nullptr, 0);
    sADMDialog->SetText(other, "caf\x8e");
    EXPECT_STREQ([[adm::record(other)->_window title] UTF8String], "caf\u00e9");
    EXPECT_EQ(adm::record(other)->_name, std::string(255, 'n'));
    sADMDialog->Destroy(other);
}

TEST_F(DialogTest, AHundredItemsStayWhereTheyAreAndOneMoreIsRefused) {
    std::vector<_Opaque_ADMItem*> items;
    for (int i = 0; i < 100; ++i) items.push_back(add(kADMTextStaticType, {0, 0, 9, 9}, i / 2));
    EXPECT_EQ(add(kADMTextStaticType, {0, 0, 9, 9}, 100), nullptr);
    EXPECT_EQ([[view_of(dialog()) subviews] count], 100u);
    EXPECT_EQ(sADMDialog->GetItem(dialog(), 50), nullptr);
    _Opaque_ADMItem* walked = adm::first_item(dialog());
    for (int i = 0; i < 100; ++i) {
        sADMItem->Destroy(items[i]);                                       // changes nothing
        EXPECT_EQ(sADMDialog->GetItem(dialog(), i / 2), items[i / 2 * 2]); // the first of two
        EXPECT_EQ(walked, items[i]);
        walked = sADMDialog->GetNextItem(dialog(), walked);
    }
    EXPECT_EQ(walked, nullptr);
}

TEST_F(DialogTest, AViewThatIsHeldLongerDrawsNoPictures) {
    static int drawn;
    drawn = 0;
    _Opaque_ADMDialog* other = make_window();
    const Rect r = {5, 5, 25, 25};
    _Opaque_ADMItem* item =
        sADMItem->Create(other, 1, kADMPictureStaticType, &r, nullptr, nullptr, 0);
    sADMItem->SetDrawProc(item, [](_Opaque_ADMItem*, _Opaque_ADMDrawer*) { ++drawn; });
    NSView* held = [view_of(other) retain];
    NSRenderView(held, 1);
    EXPECT_EQ(drawn, 1);
    sADMDialog->Destroy(other);
    NSRenderView(held, 1);
    EXPECT_EQ(drawn, 1);
    [held release];
}

TEST_F(DialogDeathTest, WhatMustHoldIsAsserted) {
    _Opaque_ADMDialog* panel = sADMDialog->CreatePanel(nullptr, "", 0, nullptr, nullptr, nullptr,
                                                       nullptr, nil, nullptr, nullptr);
    const Rect r = {0, 0, 20, 20};
    EXPECT_EXIT(sADMItem->Create(panel, 1, kADMSliderType, &r, nullptr, nullptr, 0),
                testing::KilledBySignal(SIGABRT),
                "view.*function Create, file ADMLibrary/ADM_Mac64, line 203");
    NSControl* stranger = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
    EXPECT_EXIT([adm::record(panel)->_adapter onControlClicked:stranger],
                testing::KilledBySignal(SIGABRT),
                "item.*onControlClicked:.*ADMLibrary/ADM_Mac64, line 1245");
    sADMDialog->Destroy(panel);
}
