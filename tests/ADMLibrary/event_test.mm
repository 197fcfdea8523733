// The user's actions, from event to notification.

#include "tests/ADMLibrary/support/ToolkitTest.h"

#include <AppKit/NSDisplayStandIn.h>

namespace {

using Calls = std::vector<std::string>;
Calls calls; // in order: whose procedure was called, for which item

void note(const char* who, _Opaque_ADMNotifier* notifier) {
    EXPECT_TRUE(sADMNotifier->IsNotifierType(notifier, "ADM User Changed Notifier"));
    EXPECT_FALSE(sADMNotifier->IsNotifierType(notifier, "ADM Other Notifier"));
    calls.push_back(who + std::to_string(sADMItem->GetID(sADMNotifier->GetItem(notifier))));
}

void notify_item(_Opaque_ADMItem* item) {
    sADMItem->SetNotifyProc(
        item, [](_Opaque_ADMItem*, _Opaque_ADMNotifier* notifier) { note("item ", notifier); });
}

struct EventTest : ToolkitTest {
    EventTest() {
        calls.clear();
        sADMDialog->SetNotifyProc(dialog(), [](_Opaque_ADMDialog*, _Opaque_ADMNotifier* notifier) {
            note("dialog ", notifier);
        });
    }
};

} // namespace

TEST_F(EventTest, AnItemsOwnProcedureHidesTheActionFromTheDialog) {
    _Opaque_ADMItem* button = add(kADMTextPushButtonType, {10, 10, 30, 110}, 3);
    user::click(control_of(button));
    notify_item(button);
    user::click(control_of(button));
    user::click(control_of(add(kADMTextCheckBoxType, {40, 10, 60, 30}, 3))); // goes to the first 3
    sADMItem->SetNotifyProc(button, nullptr);
    sADMDialog->SetNotifyProc(dialog(), nullptr);
    user::click(control_of(button));
    EXPECT_EQ(calls, (Calls{"dialog 3", "item 3", "item 3"}));
}

TEST_F(EventTest, ACheckBoxTogglesAtEachClickUnlessItIsDisabled) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "text", {10, 10, 28, 140}, 4);
    for (bool on : {true, false, true}) {
        user::click(control_of(check));
        EXPECT_EQ(sADMItem->GetBooleanValue(check), on);
    }
    sADMItem->Enable(check, false);
    user::click(control_of(check));
    EXPECT_TRUE(sADMItem->GetBooleanValue(check));
    EXPECT_EQ(calls, (Calls{"dialog 4", "dialog 4", "dialog 4"}));
}

TEST_F(EventTest, ARadioButtonTurnsItsGroupOverBeforeTheNotification) {
    static std::vector<bool> states;
    states.clear();
    for (std::int16_t i = 0; i < 3; ++i)
        add(kADMTextRadioButtonType, {10, static_cast<std::int16_t>(30 * i), 27, 90}, 50 + i);
    sADMDialog->SetNotifyProc(dialog(), [](_Opaque_ADMDialog* acted, _Opaque_ADMNotifier*) {
        for (int id = 50; id < 53; ++id)
            states.push_back(sADMItem->GetBooleanValue(sADMDialog->GetItem(acted, id)));
    });
    user::click(control_of(sADMDialog->GetItem(dialog(), 52)));
    user::click(control_of(sADMDialog->GetItem(dialog(), 52)));
    EXPECT_EQ(states, (std::vector<bool>{false, false, true, false, false, true}));
}

TEST_F(EventTest, ANumberNotifiesWhenEditingEnds) {
    _Opaque_ADMItem* edit = add(kADMTextEditType, {10, 10, 30, 110}, 7);
    sADMItem->SetMaxFloatValue(edit, 500);
    user::click(control_of(edit));
    [(NSTextField*)control_of(edit) selectText:nil];
    user::type(@"720");
    EXPECT_EQ(calls, Calls{});
    user::type(@"\r");
    EXPECT_EQ(calls, Calls{"dialog 7"});
    EXPECT_EQ(shown(edit), "720");
    EXPECT_EQ(sADMItem->GetFloatValue(edit), 500);
}

TEST_F(EventTest, APickedEntryIsSelectedAndNotifies) {
    _Opaque_ADMItem* pop_up = add(kADMPopupListType, {10, 10, 29, 150}, 8);
    _Opaque_ADMList* list = sADMItem->GetList(pop_up);
    for (const char* title : {"None", "Camera 1", "Camera 2"})
        sADMEntry->SetText(sADMList->InsertEntry(list, sADMList->NumberOfEntries(list)), title);
    NSPostClick(control_of(pop_up), NSMakePoint(50, 10));
    NSPostKey(NSDownArrowFunctionKey);
    NSPostKey(NSDownArrowFunctionKey);
    NSPostKey('\r');
    NSDispatchEvents();
    EXPECT_EQ(calls, Calls{"dialog 8"});
    EXPECT_EQ(sADMEntry->GetIndex(sADMList->GetActiveEntry(list)), 2);
}

TEST_F(EventTest, AFrameDoesNotKeepClicksFromTheControlsUnderIt) {
    _Opaque_ADMItem* check = add_text(kADMTextCheckBoxType, "Position", {53, 25, 70, 95}, 24);
    add_text(kADMFrameType, "Insert Keys", {26, 7, 92, 306});
    user::click(control_of(check));
    EXPECT_TRUE(sADMItem->GetBooleanValue(check));
}

TEST_F(EventTest, AProcedureMayThrowOrDestroyItsDialog) {
    _Opaque_ADMDialog* window = make_window();
    sADMDialog->Show(window, true);
    const Rect r = {40, 10, 60, 110};
    _Opaque_ADMItem* button =
        sADMItem->Create(window, 5, kADMTextPushButtonType, &r, nullptr, nullptr, 0);
    sADMItem->SetNotifyProc(button, [](_Opaque_ADMItem*, _Opaque_ADMNotifier*) { throw 516; });
    testing::internal::CaptureStderr();
    user::click(control_of(button));
    EXPECT_NE(testing::internal::GetCapturedStderr().find("notify procedure"), std::string::npos);

    sADMItem->SetNotifyProc(button, nullptr);
    sADMDialog->SetUserData(window, this);
    sADMDialog->SetNotifyProc(
        window, [](_Opaque_ADMDialog* acted, _Opaque_ADMNotifier*) { sADMDialog->Destroy(acted); });
    user::click(control_of(button));
    EXPECT_EQ(adm::dialog_of(this), nullptr);
}
