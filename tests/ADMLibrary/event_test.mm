// The user's actions, from the event to the notification.

#include "tests/ADMLibrary/support/ToolkitTest.h"

namespace {

// What was told, in order: who was asked and for which item.
std::vector<std::string> told;

void note(const char* who, _Opaque_ADMNotifier* notifier) {
    EXPECT_TRUE(sADMNotifier->IsNotifierType(notifier, "ADM User Changed Notifier"));
    EXPECT_FALSE(sADMNotifier->IsNotifierType(notifier, "ADM Other Notifier"));
    told.push_back(who + std::to_string(sADMItem->GetID(sADMNotifier->GetItem(notifier))));
}

struct EventTest : ToolkitTest {
    EventTest() {
        told.clear();
        sADMDialog->SetNotifyProc(dialog(), [](_Opaque_ADMDialog*, _Opaque_ADMNotifier* notifier) {
            note("dialog ", notifier);
        });
    }
    static void tell_item(_Opaque_ADMItem* item) {
        sADMItem->SetNotifyProc(item, [](_Opaque_ADMItem* acted, _Opaque_ADMNotifier* notifier) {
            EXPECT_EQ(acted, sADMNotifier->GetItem(notifier));
            note("item ", notifier);
        });
    }
};

using Told = std::vector<std::string>;

} // namespace

TEST_F(EventTest, AClickIsToldOnce) {
    user::click(control_of(add(kADMTextPushButtonType, {10, 10, 30, 110}, 3)));
    EXPECT_EQ(told, Told{"dialog 3"});
}

TEST_F(EventTest, AnItemsOwnProcedureHidesTheActionFromTheDialog) {
    _Opaque_ADMItem* button = add(kADMTextPushButtonType, {10, 10, 30, 110}, 3);
    tell_item(button);
    user::click(control_of(button));
    EXPECT_EQ(told, Told{"item 3"});
    sADMItem->SetNotifyProc(button, nullptr);
    sADMDialog->SetNotifyProc(dialog(), nullptr);
    user::click(control_of(button));
    EXPECT_EQ(told, Told{"item 3"});
}

TEST_F(EventTest, ACheckBoxTogglesAtEachClickUnlessItIsDisabled) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text", {10, 10, 28, 140}, 4);
    for (bool on : {true, false, true}) {
        user::click(control_of(check));
        EXPECT_EQ(sADMItem->GetBooleanValue(check), on);
    }
    EXPECT_EQ(told, (Told{"dialog 4", "dialog 4", "dialog 4"}));
    sADMItem->Enable(check, false);
    user::click(control_of(check));
    EXPECT_TRUE(sADMItem->GetBooleanValue(check));
    EXPECT_EQ(told.size(), 3u);
}

TEST_F(EventTest, ARadioButtonTurnsItsGroupOverBeforeAnybodyIsTold) {
    static std::vector<bool> states;
    states.clear();
    for (int i = 0; i < 3; ++i)
        add(kADMTextRadioButtonType,
            {static_cast<std::int16_t>(10 + 20 * i), 10, static_cast<std::int16_t>(27 + 20 * i),
             30},
            50 + i);
    sADMDialog->SetNotifyProc(dialog(), [](_Opaque_ADMDialog* told_dialog, _Opaque_ADMNotifier*) {
        for (int id = 50; id < 53; ++id)
            states.push_back(sADMItem->GetBooleanValue(sADMDialog->GetItem(told_dialog, id)));
    });
    user::click(control_of(sADMDialog->GetItem(dialog(), 52)));
    EXPECT_EQ(states, (std::vector<bool>{false, false, true}));
    user::click(control_of(sADMDialog->GetItem(dialog(), 52)));
    EXPECT_TRUE(sADMItem->GetBooleanValue(sADMDialog->GetItem(dialog(), 52)));
}

TEST_F(EventTest, ANumberIsToldWhenEditingEnds) {
    _Opaque_ADMItem* edit = add(kADMTextEditType, {10, 10, 30, 110}, 7);
    sADMItem->SetMaxFloatValue(edit, 500);
    user::enter((NSTextField*)control_of(edit), "720");
    EXPECT_EQ(told, Told{"dialog 7"});
    EXPECT_EQ(shown(edit), "720");
    EXPECT_EQ(sADMItem->GetFloatValue(edit), 500);
}

TEST_F(EventTest, APickedEntryIsSelectedAndTold) {
    _Opaque_ADMItem* pop_up = add(kADMPopupListType, {10, 10, 29, 150}, 8);
    _Opaque_ADMList* list = sADMItem->GetList(pop_up);
    for (const char* title : {"None", "Camera 1", "Camera 2"})
        sADMEntry->SetText(sADMList->InsertEntry(list, sADMList->NumberOfEntries(list)), title);
    user::pick(control_of(pop_up), 2);
    EXPECT_EQ(told, Told{"dialog 8"});
    EXPECT_EQ(sADMEntry->GetIndex(sADMList->GetActiveEntry(list)), 2);
}

TEST_F(EventTest, ASliderIsToldWhereItWasMoved) {
    _Opaque_ADMItem* slider = add(kADMSliderType, {10, 10, 30, 210}, 9);
    sADMItem->SetMaxFloatValue(slider, 1);
    user::click_at(control_of(slider), NSMakePoint(100, 10));
    ASSERT_FALSE(told.empty());
    EXPECT_NEAR(sADMItem->GetFloatValue(slider), 0.5, 0.05);
}

TEST_F(EventTest, AFrameDoesNotKeepClicksFromTheControlsUnderIt) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "Position", {53, 25, 70, 95}, 24);
    add_text(kADMFrameType, "Insert Keys", {26, 7, 92, 306});
    const NSPoint middle = [view_of(dialog()) convertPoint:NSMakePoint(33, 61) toView:nil];
    NSView* content = [_window contentView];
    NSView* hit = [content hitTest:[[content superview] convertPoint:middle fromView:nil]];
    EXPECT_EQ(hit, control_of(check));
    user::click(control_of(check));
    EXPECT_TRUE(sADMItem->GetBooleanValue(check));
}

TEST_F(EventTest, ActionsOfASecondItemGoToTheFirstWithItsId) {
    add(kADMTextPushButtonType, {10, 10, 30, 110}, 3);
    _Opaque_ADMItem* first = sADMDialog->GetItem(dialog(), 3);
    tell_item(first);
    user::click(control_of(add(kADMTextCheckBoxType, {40, 10, 60, 30}, 3)));
    EXPECT_EQ(told, Told{"item 3"});
}

TEST_F(EventTest, WindowDialogsAreToldTheSameWay) {
    _Opaque_ADMDialog* window = sADMDialog->Create(nullptr, "", 0, 3, nullptr, nullptr, 0);
    const Rect r = {10, 10, 30, 110};
    _Opaque_ADMItem* button =
        sADMItem->Create(window, 5, kADMTextPushButtonType, &r, nullptr, nullptr, 0);
    tell_item(button);
    sADMDialog->Show(window, true);
    user::click(control_of(button));
    EXPECT_EQ(told, Told{"item 5"});
    sADMDialog->Destroy(window);
}

TEST_F(EventTest, AnExceptionOfAProcedureEndsInTheToolkit) {
    _Opaque_ADMItem* button = add(kADMTextPushButtonType, {10, 10, 30, 110}, 3);
    sADMItem->SetNotifyProc(button, [](_Opaque_ADMItem*, _Opaque_ADMNotifier*) { throw 516; });
    testing::internal::CaptureStderr();
    user::click(control_of(button));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("notify procedure"), std::string::npos);
}

TEST_F(EventTest, AProcedureMayDestroyItsDialog) {
    _Opaque_ADMDialog* panel =
        sADMDialog->CreatePanel(nullptr, "", 0, nullptr, nullptr, nullptr, nullptr,
                                [_window contentView], nullptr, nullptr);
    const Rect r = {40, 10, 60, 110};
    _Opaque_ADMItem* button =
        sADMItem->Create(panel, 5, kADMTextPushButtonType, &r, nullptr, nullptr, 0);
    sADMDialog->SetNotifyProc(
        panel, [](_Opaque_ADMDialog* acted, _Opaque_ADMNotifier*) { sADMDialog->Destroy(acted); });
    sADMDialog->SetUserData(panel, this);
    user::click(control_of(button));
    EXPECT_EQ(adm::dialog_of(this), nullptr);
}
