#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

#include <memory>

namespace {

struct DialogTest : ToolkitTest {
    static _Opaque_ADMDialog* window(ADMDialogStyle style = 3, ADMDialogInitProc init = nullptr) {
        return sADMDialog->Create(nullptr, "window", 0, style, init, nullptr, 0);
    }
    static Rect bounds_of(_Opaque_ADMDialog* dialog) {
        Rect r = {0, 0, 0, 0};
        sADMDialog->GetBoundsRect(dialog, &r);
        return r;
    }
};
using DialogDeathTest = DialogTest;

int add_and_fail(_Opaque_ADMDialog* dialog) {
    const Rect r = {0, 0, 20, 100};
    sADMItem->Create(dialog, 1, kADMTextCheckBoxType, &r, nullptr, nullptr, 0);
    return 7;
}

} // namespace

TEST_F(DialogTest, StylesChooseTheWindow) {
    struct Case {
        ADMDialogStyle style;
        NSUInteger mask;
    };
    const Case cases[] = {{0, 1}, {1, 1}, {2, 1},  {3, 1},  {4, 9},  {5, 9},  {6, 0}, {7, 1},
                          {8, 1}, {9, 0}, {10, 9}, {11, 1}, {13, 1}, {14, 1}, {15, 9}};
    for (const Case& c : cases) {
        _Opaque_ADMDialog* dialog = window(c.style);
        EXPECT_EQ([adm::record(dialog)->_window styleMask], c.mask) << "style " << c.style;
        sADMDialog->Destroy(dialog);
    }
}

TEST_F(DialogTest, AWindowIsMadeHiddenAndThenOnlyOrderedBack) {
    _Opaque_ADMDialog* dialog = window();
    EXPECT_FALSE(sADMDialog->IsVisible(dialog));
    sADMDialog->Show(dialog, true);
    EXPECT_TRUE(sADMDialog->IsVisible(dialog));
    EXPECT_TRUE(sADMDialog->IsEnabled(dialog));
    sADMDialog->Show(dialog, false);
    EXPECT_TRUE(sADMDialog->IsVisible(dialog));
    EXPECT_EQ([[NSApp orderedWindows] lastObject], adm::record(dialog)->_window);
    sADMDialog->Destroy(dialog);
}

TEST_F(DialogTest, APanelIsVisibleWithTheWindowThatItStandsIn) {
    EXPECT_TRUE(sADMDialog->IsVisible(dialog()));
    EXPECT_FALSE(sADMDialog->IsEnabled(dialog()));
    [_window orderOut:nil];
    EXPECT_FALSE(sADMDialog->IsVisible(dialog()));
    [_window orderFront:nil];
    [view_of(dialog()) removeFromSuperview];
    EXPECT_FALSE(sADMDialog->IsVisible(dialog()));
}

TEST_F(DialogTest, AWindowIsPlacedByItsFrameInScreenCoordinates) {
    _Opaque_ADMDialog* dialog = window(6);
    const Rect placed = {100, 50, 300, 400};
    sADMDialog->SetBoundsRect(dialog, &placed);
    EXPECT_EQ(bounds_of(dialog), placed);
    const NSRect frame = [adm::record(dialog)->_window frame];
    EXPECT_TRUE(NSEqualRects(frame, NSMakeRect(50, 100, 350, 200)));
    const Rect size = {0, 0, 250, 501};
    sADMDialog->SetLocalRect(dialog, &size);
    EXPECT_EQ(bounds_of(dialog), (Rect{100, 50, 350, 551}));
    [adm::record(dialog)->_window setFrame:NSMakeRect(10.9, 20, 35.9, 40) display:NO];
    EXPECT_EQ(bounds_of(dialog), (Rect{20, 10, 60, 45}));
    sADMDialog->Destroy(dialog);
}

TEST_F(DialogTest, ATitleBarHidesNoItemOfAShownWindow) {
    _Opaque_ADMDialog* dialog = window(3);
    const Rect size = {0, 0, 200, 300};
    sADMDialog->SetBoundsRect(dialog, &size);
    const Rect low = {180, 10, 199, 100};
    sADMItem->Create(dialog, 1, kADMTextPushButtonType, &low, nullptr, nullptr, 0);
    sADMDialog->Show(dialog, true);
    EXPECT_EQ([view_of(dialog) frame].size.height, 200);
    const Rect shown = bounds_of(dialog);
    sADMDialog->Show(dialog, true);
    EXPECT_EQ(bounds_of(dialog), shown);
    sADMDialog->Destroy(dialog);
}

TEST_F(DialogTest, APanelTellsItsHostOneSize) {
    dialog();
    A_LPoint sizes[2] = {{-1, -1}, {-1, -1}};
    A_long count = 9;
    EXPECT_EQ(_functions.GetSnapSizes(nullptr, sizes, &count), 0);
    EXPECT_EQ(count, 9);
    EXPECT_EQ(_functions.GetSnapSizes(_refcon, sizes, &count), 0);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(sizes[0].x, 0);

    const Rect rect = {10, 20, 460, 521};
    sADMDialog->SetBoundsRect(dialog(), &rect);
    const Rect local = {0, 0, 450, 502};
    sADMDialog->SetLocalRect(dialog(), &local);
    EXPECT_EQ(bounds_of(dialog()), (Rect{10, 20, 460, 522}));
    _functions.GetSnapSizes(_refcon, sizes, &count);
    EXPECT_EQ(sizes[0].x, 502);
    EXPECT_EQ(sizes[0].y, 450);
    EXPECT_EQ(sizes[1].x, -1);
    EXPECT_EQ(_functions.PopulateFlyout, nullptr);
}

TEST_F(DialogTest, APanelFillsTheHostsViewAndFollowsIt) {
    NSView* view = view_of(dialog());
    EXPECT_EQ([view superview], [_window contentView]);
    EXPECT_TRUE([view isFlipped]);
    [_window setContentSize:NSMakeSize(320, 200)];
    EXPECT_TRUE(NSEqualRects([view frame], NSMakeRect(0, 0, 320, 200)));
}

TEST_F(DialogTest, TitlesGoToTheHostAsTheyAreAndToWindowsAsMacRoman) {
    sADMDialog->SetText(dialog(), "caf\x8e");
    EXPECT_EQ(FakeHost::panel_title, "caf\x8e");
    _Opaque_ADMDialog* other = window();
    sADMDialog->SetText(other, "caf\x8e");
    EXPECT_STREQ([[adm::record(other)->_window title] UTF8String], "caf\u00e9");
    sADMDialog->Destroy(other);
}

TEST_F(DialogTest, NamesAreCutToTheirField) {
    const std::string name(300, 'n');
    _Opaque_ADMDialog* dialog =
        sADMDialog->Create(nullptr, name.c_str(), 0, 3, nullptr, nullptr, 0);
    EXPECT_EQ(adm::record(dialog)->_name, std::string(255, 'n'));
    sADMDialog->Destroy(dialog);
}

TEST_F(DialogTest, AFailingInitProcedureLeavesNothingBehind) {
    const NSUInteger views = [[[_window contentView] subviews] count];
    EXPECT_EQ(window(3, add_and_fail), nullptr);
    EXPECT_EQ(sADMDialog->CreatePanel(nullptr, "", 0, add_and_fail, nullptr, nullptr, nullptr,
                                      [_window contentView], &_functions, &_refcon),
              nullptr);
    EXPECT_EQ([[[_window contentView] subviews] count], views);
}

TEST_F(DialogTest, ItemsAreFoundByTheirIdAndInTheirOrder) {
    _Opaque_ADMItem* first = add(kADMTextStaticType, {0, 0, 10, 10}, 5);
    _Opaque_ADMItem* second = add(kADMSliderType, {0, 0, 10, 10}, 5);
    _Opaque_ADMItem* third = add(kADMFrameType, {0, 0, 10, 10}, 6);
    EXPECT_EQ(sADMDialog->GetItem(dialog(), 5), first);
    EXPECT_EQ(sADMDialog->GetItem(dialog(), 7), nullptr);
    EXPECT_EQ(adm::first_item(dialog()), first);
    EXPECT_EQ(sADMDialog->GetNextItem(dialog(), first), second);
    EXPECT_EQ(sADMDialog->GetNextItem(dialog(), second), third);
    EXPECT_EQ(sADMDialog->GetNextItem(dialog(), third), nullptr);
    EXPECT_EQ(sADMItem->GetID(third), 6);
    EXPECT_EQ(adm::first_item(nullptr), nullptr);
}

TEST_F(DialogTest, AHundredItemsStayWhereTheyAreAndOneMoreIsRefused) {
    std::vector<_Opaque_ADMItem*> items;
    for (int i = 0; i < 100; ++i) items.push_back(add(kADMTextStaticType, {0, 0, 9, 9}, i));
    const NSUInteger views = [[view_of(dialog()) subviews] count];
    EXPECT_EQ(add(kADMTextStaticType, {0, 0, 9, 9}, 100), nullptr);
    EXPECT_EQ([[view_of(dialog()) subviews] count], views);
    for (int i = 0; i < 100; ++i) {
        EXPECT_EQ(sADMDialog->GetItem(dialog(), i), items[i]);
        sADMItem->Destroy(items[i]); // changes nothing
        EXPECT_EQ(sADMItem->GetID(items[i]), i);
    }
}

TEST_F(DialogTest, TheDestroyProcedureSeesAllItemsAndCannotDestroyAgain) {
    static int calls;
    calls = 0;
    _Opaque_ADMDialog* dialog = window();
    const Rect r = {0, 0, 20, 20};
    sADMItem->Create(dialog, 4, kADMTextRadioButtonType, &r, nullptr, nullptr, 0);
    sADMDialog->SetDestroyProc(dialog, [](_Opaque_ADMDialog* going) {
        ++calls;
        EXPECT_TRUE(sADMItem->GetBooleanValue(sADMDialog->GetItem(going, 4)));
        sADMDialog->Destroy(going);
    });
    sADMDialog->Destroy(dialog);
    EXPECT_EQ(calls, 1);
}

TEST_F(DialogTest, ADestroyedPanelLeavesTheHostsViewAndItsControlsAreMute) {
    _Opaque_ADMDialog* panel =
        sADMDialog->CreatePanel(nullptr, "", 0, nullptr, nullptr, nullptr, nullptr,
                                [_window contentView], nullptr, nullptr);
    const Rect r = {0, 0, 20, 20};
    NSControl* kept =
        [control_of(sADMItem->Create(panel, 1, kADMTextPushButtonType, &r, nullptr, nullptr, 0))
            retain];
    sADMDialog->Destroy(panel);
    EXPECT_EQ([[[_window contentView] subviews] count], 0u);
    EXPECT_EQ([kept target], nil);
    [kept release];
}

TEST_F(DialogTest, ADialogIsFoundByItsUserDataWhileItLives) {
    int mark = 0;
    sADMDialog->SetUserData(dialog(), &mark);
    EXPECT_EQ(sADMDialog->GetUserData(dialog()), &mark);
    EXPECT_EQ(adm::dialog_of(&mark), dialog());
    EXPECT_EQ(adm::dialog_of(nullptr), nullptr);
    sADMDialog->SetUserData(dialog(), nullptr);
    EXPECT_EQ(adm::dialog_of(&mark), nullptr);
}

TEST_F(DialogTest, TheScreenIsToldForPointsInsideItsVisiblePart) {
    const NSRect visible = [[NSScreen mainScreen] visibleFrame];
    Rect r = {7, 7, 7, 7};
    const Point outside = {static_cast<std::int16_t>(NSMaxY(visible)), 0};
    EXPECT_FALSE(sADMBasic->GetScreenDimensions(&outside, &r));
    EXPECT_EQ(r, (Rect{7, 7, 7, 7}));
    const Point inside = {static_cast<std::int16_t>(NSMinY(visible)),
                          static_cast<std::int16_t>(NSMinX(visible))};
    EXPECT_TRUE(sADMBasic->GetScreenDimensions(&inside, &r));
    EXPECT_EQ(r.bottom - r.top, static_cast<int>(visible.size.height));
    EXPECT_EQ(r.right - r.left, static_cast<int>(visible.size.width));
}

TEST_F(DialogDeathTest, ItemsNeedAContentView) {
    _Opaque_ADMDialog* panel = sADMDialog->CreatePanel(nullptr, "", 0, nullptr, nullptr, nullptr,
                                                       nullptr, nil, nullptr, nullptr);
    const Rect r = {0, 0, 20, 20};
    EXPECT_EXIT(sADMItem->Create(panel, 1, kADMSliderType, &r, nullptr, nullptr, 0),
                testing::KilledBySignal(SIGABRT),
                "view.*function Create, file ADMLibrary/ADM_Mac64, line 203");
    sADMDialog->Destroy(panel);
}

TEST_F(DialogDeathTest, AnActionNeedsItsItem) {
    NSButton* stranger = [[[NSButton alloc] initWithFrame:NSMakeRect(0, 0, 9, 9)] autorelease];
    [stranger setTag:77];
    EXPECT_EXIT([adm::record(dialog())->_adapter onControlClicked:stranger],
                testing::KilledBySignal(SIGABRT),
                "item.*onControlClicked:.*ADMLibrary/ADM_Mac64, line 1245");
}
