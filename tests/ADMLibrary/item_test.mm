#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/AECells.h"
#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/AEDrawerCell.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

namespace {

using ItemTest = ToolkitTest;

Rgb rgb_of(NSColor* color) {
    const auto part = [](CGFloat value) { return static_cast<int>(std::lround(value * 255)); };
    return {part([color redComponent]), part([color greenComponent]), part([color blueComponent])};
}

} // namespace

TEST_F(ItemTest, EachTypeIsMadeOfItsViews) {
    struct Case {
        const char* type;
        Class control, cell;
        bool label;
    };
    const Case cases[] = {
        {kADMTextPushButtonType, [NSButton class], [AEButtonCell class], false},
        {kADMTextCheckBoxType, [NSButton class], [AECheckBoxCell class], false},
        {kADMTextRadioButtonType, [NSButton class], [AERadioCell class], false},
        {kADMTextEditType, [NSTextField class], [NSTextFieldCell class], false},
        {kADMTextStaticType, nil, nil, true},
        {kADMPopupListType, [NSPopUpButton class], [AEPopupButtonCell class], false},
        {kADMPopupMenuType, [NSPopUpButton class], [AEPopupButtonCell class], false},
        {kADMSliderType, [NSSlider class], [NSSliderCell class], false},
        {kADMPictureStaticType, [NSButton class], [AEDrawerCell class], false},
        {kADMFrameType, nil, nil, false},
        {kADMPicturePushButtonType, nil, nil, false},
        {"ADM Hologram Type", nil, nil, false},
        {nullptr, nil, nil, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.type ? c.type : "null");
        _Opaque_ADMItem* item = add(c.type, {10, 20, 35, 140});
        ASSERT_NE(item, nullptr);
        NSControl* control = control_of(item);
        EXPECT_EQ([control class], c.control);
        EXPECT_EQ([[control cell] class], c.cell);
        EXPECT_EQ(label_of(item) != nil, c.label);
        if (control) {
            EXPECT_EQ([control tag], sADMItem -> GetID(item));
            EXPECT_EQ([control superview], view_of(dialog()));
            const CGFloat height = c.type == kADMTextEditType ? 20 : 25;
            EXPECT_TRUE(NSEqualRects([control frame], NSMakeRect(20, 10, 120, height)));
        }
    }
}

TEST_F(ItemTest, ANewItemHoldsWhatItWasGiven) {
    int mark = 0;
    const Rect r = {1, 2, 3, 4};
    _Opaque_ADMItem* item = sADMItem->Create(
        dialog(), 9, kADMSliderType, &r, [](_Opaque_ADMItem*) { return 1; }, &mark, 0);
    EXPECT_EQ(item, nullptr); // its procedure failed, but it stays in the dialog
    item = sADMDialog->GetItem(dialog(), 9);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(sADMItem->GetUserData(item), &mark);
    EXPECT_EQ(adm::record(item)->_bounds, r);
    EXPECT_NE(sADMItem->Create(dialog(), 10, kADMSliderType, nullptr, nullptr, nullptr, 0),
              nullptr);
}

TEST_F(ItemTest, FramesLieBelowWhatIsMadeLaterAndAboveWhatWasThere) {
    _Opaque_ADMItem* edit = add(kADMTextEditType);
    add(kADMFrameType);
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text");
    add(kADMFrameType);
    _Opaque_ADMItem* later = add(kADMSliderType);
    NSArray* views = [view_of(dialog()) subviews];
    ASSERT_EQ([views count], 6u);
    EXPECT_TRUE([[views objectAtIndex:0] isKindOfClass:[NSBox class]]);
    EXPECT_EQ([views objectAtIndex:1], control_of(edit));
    EXPECT_EQ([views objectAtIndex:2], control_of(check));
    EXPECT_EQ([views objectAtIndex:3], label_of(check));
    EXPECT_TRUE([[views objectAtIndex:4] isKindOfClass:[NSBox class]]);
    EXPECT_EQ([views objectAtIndex:5], control_of(later));
}

TEST_F(ItemTest, TextGoesWhereTheTypeShowsIt) {
    EXPECT_STREQ(
        [[(NSButton*)control_of(add_text(kADMTextPushButtonType, "Appl\x8e")) title] UTF8String],
        "Appl\u00e9");
    EXPECT_EQ(shown(add_text(kADMTextEditType, "12 cm")), "12 cm");

    _Opaque_ADMItem* text = add_text(kADMTextStaticType, "Angle");
    EXPECT_STREQ([[label_of(text) stringValue] UTF8String], "Angle");
    EXPECT_EQ(rgb_of([label_of(text) textColor]), FakeHost::color(2));

    add_text(kADMPicturePushButtonType, "nowhere");
    sADMItem->SetText(text, nullptr);
    EXPECT_STREQ([[label_of(text) stringValue] UTF8String], "Angle");
}

TEST_F(ItemTest, ALabelIsMadeForTheFirstTextThatIsNotEmpty) {
    _Opaque_ADMDialog* window = sADMDialog->Create(nullptr, "", 0, 3, nullptr, nullptr, 0);
    for (_Opaque_ADMDialog* place : {dialog(), window}) {
        int id = 100;
        for (const char* type : {kADMTextCheckBoxType, kADMTextRadioButtonType, kADMFrameType}) {
            SCOPED_TRACE(type);
            const Rect r = {50, 10, 70, 200};
            _Opaque_ADMItem* item = sADMItem->Create(place, id += 2, type, &r, nullptr, nullptr, 0);
            sADMItem->SetText(item, "");
            EXPECT_EQ(label_of(item), nil);
            sADMItem->SetText(item, "first");
            NSTextField* label = label_of(item);
            ASSERT_NE(label, nil);
            EXPECT_EQ([label superview], view_of(place));
            EXPECT_FALSE([label isEditable]);
            sADMItem->SetText(item, "second");
            EXPECT_EQ(label_of(item), label);
            EXPECT_STREQ([[label stringValue] UTF8String], "second");
        }
    }
    sADMDialog->Destroy(window);
}

TEST_F(ItemTest, FontsComeInSets) {
    const CGFloat size = [NSFont systemFontSizeForControlSize:2];
    NSFont* regular = [NSFont systemFontOfSize:size];
    NSFont* bold = [NSFont boldSystemFontOfSize:size];
    NSFont* courier = [NSFont fontWithName:@"Courier" size:size];
    ASSERT_NE(courier, nil);
    NSFont* const expected[] = {nil,  nil,  nil,     regular, regular, bold,    bold,
                                bold, bold, courier, courier, courier, courier, nil};
    for (int font = -1; font <= 13; ++font) {
        _Opaque_ADMItem* item = add(kADMTextStaticType);
        [label_of(item) setFont:[NSFont systemFontOfSize:30]];
        sADMItem->SetFont(item, font);
        NSFont* wanted = font < 0 ? nil : expected[font];
        NSFont* got = [label_of(item) font];
        EXPECT_STREQ([[got fontName] UTF8String], [[wanted ? wanted : regular fontName] UTF8String])
            << "font " << font;
        EXPECT_EQ([got pointSize], wanted ? size : 30) << "font " << font;
    }
    _Opaque_ADMItem* edit = add(kADMTextEditType);
    sADMItem->SetFont(edit, 6);
    EXPECT_STREQ([[[control_of(edit) font] fontName] UTF8String], [[bold fontName] UTF8String]);
}

TEST_F(ItemTest, EnablingReachesControlAndLabel) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text");
    _Opaque_ADMItem* text = add_text(kADMTextStaticType, "text");
    for (_Opaque_ADMItem* item : {check, text}) {
        for (bool on : {false, true}) {
            sADMItem->Enable(item, on);
            EXPECT_EQ(sADMItem->IsEnabled(item), on);
            EXPECT_EQ([label_of(item) isEnabled], on);
            EXPECT_EQ(rgb_of([label_of(item) textColor]), FakeHost::color(on ? 2 : 23));
        }
    }
    _Opaque_ADMItem* nothing = add(kADMPicturePushButtonType);
    sADMItem->Enable(nothing, true);
    EXPECT_FALSE(sADMItem->IsEnabled(nothing));
}

TEST_F(ItemTest, HidingTakesTheViewsOutAndShowingPutsThemOnTop) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text");
    add(kADMSliderType);
    sADMItem->Show(check, false);
    EXPECT_EQ([control_of(check) superview], nil);
    EXPECT_EQ([label_of(check) superview], nil);
    sADMItem->Show(check, true);
    EXPECT_EQ([[view_of(dialog()) subviews] lastObject], label_of(check));
    EXPECT_EQ([[view_of(dialog()) subviews] objectAtIndex:1], control_of(check));
}

TEST_F(ItemTest, BooleansAreTheStatesOfButtons) {
    for (const char* type : {kADMTextCheckBoxType, kADMTextPushButtonType}) {
        _Opaque_ADMItem* item = add(type);
        EXPECT_FALSE(sADMItem->GetBooleanValue(item)) << type;
        sADMItem->SetBooleanValue(item, 255);
        EXPECT_TRUE(sADMItem->GetBooleanValue(item)) << type;
    }
    _Opaque_ADMItem* edit = add(kADMTextEditType);
    sADMItem->SetBooleanValue(edit, true);
    EXPECT_FALSE(sADMItem->GetBooleanValue(edit));
}

TEST_F(ItemTest, RadioButtonsWithNeighbouringIdsAreAGroup) {
    const auto radio = [this](int id) { return add(kADMTextRadioButtonType, {0, 0, 9, 9}, id); };
    const auto on = [this](std::vector<int> ids) {
        std::vector<bool> states;
        for (int id : ids)
            states.push_back(sADMItem->GetBooleanValue(sADMDialog->GetItem(dialog(), id)));
        return states;
    };
    using States = std::vector<bool>;
    for (int id : {10, 11, 12}) radio(id);
    sADMItem->SetBooleanValue(add(kADMTextCheckBoxType, {0, 0, 9, 9}, 13), true);
    radio(14);
    EXPECT_EQ(on({10, 11, 12, 13, 14}), (States{true, false, false, true, true}));
    sADMItem->SetBooleanValue(sADMDialog->GetItem(dialog(), 11), true);
    EXPECT_EQ(on({10, 11, 12, 13, 14}), (States{false, true, false, true, true}));
    sADMItem->SetBooleanValue(sADMDialog->GetItem(dialog(), 11), false);
    EXPECT_EQ(on({10, 11, 12}), (States{false, false, false}));

    radio(1); // made before its lower neighbour, which finds it on
    radio(0);
    EXPECT_EQ(on({0, 1}), (States{false, true}));
    sADMItem->SetBooleanValue(sADMDialog->GetItem(dialog(), 0), true);
    EXPECT_EQ(on({0, 1}), (States{true, false}));

    radio(-1); // the group of 0 does not reach below it
    sADMItem->SetBooleanValue(sADMDialog->GetItem(dialog(), 1), true);
    sADMItem->SetBooleanValue(radio(std::numeric_limits<int>::max()), true);
    EXPECT_TRUE(sADMItem->GetBooleanValue(sADMDialog->GetItem(dialog(), 1)));
}

TEST_F(ItemTest, HostColoursAreAskedAnewAndBlackWhenRefused) {
    EXPECT_EQ(rgb_of(GetAEColor(45)), FakeHost::color(45));
    EXPECT_EQ(rgb_of(GetAETextColor()), FakeHost::color(2));
    FakeHost::refuse_colors = true;
    EXPECT_EQ(rgb_of(GetAEColor(45)), Rgb{});
    sPFAppSuite = nullptr;
    EXPECT_EQ(rgb_of(GetAEColor(45)), Rgb{});
    EXPECT_EQ([GetMiniSystemFont() pointSize], [NSFont systemFontSizeForControlSize:2]);
}
