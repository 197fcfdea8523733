#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/iADMDialog.h"

namespace {

using ItemTest = ToolkitTest;
using States = std::vector<bool>;

std::string class_of(id object) {
    return object ? class_getName([object class]) : "";
}

} // namespace

TEST_F(ItemTest, EachTypeIsMadeOfItsViews) {
    struct Case {
        const char *type, *cell;
    };
    const Case cases[] = {{kADMTextPushButtonType, "AEButtonCell"},
                          {kADMTextCheckBoxType, "AECheckBoxCell"},
                          {kADMTextRadioButtonType, "AERadioCell"},
                          {kADMTextEditType, "NSTextFieldCell"},
                          {kADMPopupListType, "AEPopupButtonCell"},
                          {kADMPopupMenuType, "AEPopupButtonCell"},
                          {kADMSliderType, "NSSliderCell"},
                          {kADMPictureStaticType, "AEDrawerCell"},
                          {kADMTextStaticType, ""},
                          {kADMFrameType, ""},
                          {"ADM Hologram Type", ""},
                          {nullptr, ""}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.type ? c.type : "null");
        _Opaque_ADMItem* item = add(c.type, {10, 20, 35, 140});
        NSControl* control = control_of(item);
        EXPECT_EQ(class_of([control cell]), c.cell);
        EXPECT_EQ(label_of(item) != nil, c.type == kADMTextStaticType);
        if (!control) continue;
        EXPECT_EQ([control tag], sADMItem -> GetID(item));
        EXPECT_EQ([control frame].size.height, c.type == kADMTextEditType ? 20 : 25);
    }
}

TEST_F(ItemTest, FramesLieBelowWhatIsMadeLaterAndAboveWhatWasThere) {
    _Opaque_ADMItem* edit = add(kADMTextEditType);
    add(kADMFrameType);
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text");
    add(kADMFrameType);
    _Opaque_ADMItem* later = add(kADMSliderType);
    NSArray* views = [view_of(dialog()) subviews];
    ASSERT_EQ([views count], 6u);
    EXPECT_EQ(class_of([views objectAtIndex:0]), "NSBox");
    EXPECT_EQ([views objectAtIndex:1], control_of(edit));
    EXPECT_EQ([views objectAtIndex:2], control_of(check));
    EXPECT_EQ([views objectAtIndex:3], label_of(check));
    EXPECT_EQ(class_of([views objectAtIndex:4]), "NSBox");
    EXPECT_EQ([views objectAtIndex:5], control_of(later));
}

TEST_F(ItemTest, TextGoesWhereTheTypeShowsIt) {
    _Opaque_ADMItem* button = add_text(kADMTextPushButtonType, "Appl\x8e");
    EXPECT_STREQ([[(NSButton*)control_of(button) title] UTF8String], "Appl\u00e9");
    EXPECT_EQ(shown(add_text(kADMTextEditType, "12 cm")), "12 cm");
    _Opaque_ADMItem* text = add_text(kADMTextStaticType, "Angle");
    sADMItem->SetText(text, nullptr);
    EXPECT_EQ(shown(text), "Angle");
    EXPECT_TRUE([[label_of(text) textColor] isEqual:GetAEColor(2)]);
    add_text(kADMPicturePushButtonType, "nowhere");
}

TEST_F(ItemTest, ALabelIsMadeForTheFirstTextThatIsNotEmpty) {
    _Opaque_ADMDialog* window = make_window();
    for (_Opaque_ADMDialog* place : {dialog(), window}) {
        for (const char* type : {kADMTextCheckBoxType, kADMTextRadioButtonType, kADMFrameType}) {
            SCOPED_TRACE(type);
            const Rect r = {50, 10, 70, 200};
            _Opaque_ADMItem* item = sADMItem->Create(place, 1, type, &r, nullptr, nullptr, 0);
            sADMItem->SetText(item, "");
            EXPECT_EQ(label_of(item), nil);
            sADMItem->SetText(item, "first");
            NSTextField* label = label_of(item);
            EXPECT_EQ([label superview], view_of(place));
            sADMItem->SetText(item, "second");
            EXPECT_EQ(label_of(item), label);
            EXPECT_STREQ([[label stringValue] UTF8String], "second");
        }
    }
    sADMDialog->Destroy(window);
}

TEST_F(ItemTest, EnablingAndFontsReachControlAndLabel) {
    const char* bold = [[[NSFont boldSystemFontOfSize:9] fontName] UTF8String];
    for (const char* type : {kADMTextCheckBoxType, kADMTextStaticType}) {
        _Opaque_ADMItem* item = add_text(type, "text");
        sADMItem->SetFont(item, 6);
        EXPECT_STREQ([[[label_of(item) font] fontName] UTF8String], bold);
        sADMItem->SetFont(item, 2); // no change
        EXPECT_STREQ([[[label_of(item) font] fontName] UTF8String], bold);
        for (bool on : {false, true}) {
            sADMItem->Enable(item, on);
            EXPECT_EQ(sADMItem->IsEnabled(item), on);
            EXPECT_EQ([label_of(item) isEnabled], on);
            EXPECT_TRUE([[label_of(item) textColor] isEqual:GetAEColor(on ? 2 : 23)]);
        }
    }
    EXPECT_FALSE(sADMItem->IsEnabled(add(kADMPicturePushButtonType)));
}

TEST_F(ItemTest, RadioButtonsWithNeighbouringIdsAreAGroup) {
    const auto radio = [this](int id) { return add(kADMTextRadioButtonType, {0, 0, 9, 9}, id); };
    const auto set = [this](int id, bool on) {
        sADMItem->SetBooleanValue(sADMDialog->GetItem(dialog(), id), on);
    };
    const auto on = [this](std::vector<int> ids) {
        States states;
        for (int id : ids)
            states.push_back(sADMItem->GetBooleanValue(sADMDialog->GetItem(dialog(), id)));
        return states;
    };
    for (int id : {10, 11, 12}) radio(id);
    sADMItem->SetBooleanValue(add(kADMTextCheckBoxType, {0, 0, 9, 9}, 13), true);
    radio(14);
    EXPECT_EQ(on({10, 11, 12, 13, 14}), (States{true, false, false, true, true}));
    set(11, true);
    EXPECT_EQ(on({10, 11, 12, 13, 14}), (States{false, true, false, true, true}));
    set(11, false);
    EXPECT_EQ(on({10, 11, 12}), (States{false, false, false}));

    radio(1);
    radio(0); // its upper neighbour is on
    EXPECT_EQ(on({0, 1}), (States{false, true}));
    radio(-1); // the group of 0 does not reach below it
    set(0, true);
    EXPECT_EQ(on({-1, 0, 1}), (States{false, true, false}));
    set((radio(INT_MAX), INT_MAX), true);
    EXPECT_EQ(on({INT_MAX}), States{true});
}
