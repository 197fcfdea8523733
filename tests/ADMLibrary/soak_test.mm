// Many dialogs, used at random and destroyed, leave nothing behind.

#include "tests/ADMLibrary/support/ToolkitTest.h"

#include <Foundation/NSLiveObjects.h>
#include <map>
#include <random>

namespace {

using Counts = std::map<std::string, NSUInteger>;

Counts live_objects() {
    Counts counts;
    NSVisitLiveObjects(
        [](Class made, NSUInteger count, void* context) {
            (*static_cast<Counts*>(context))[class_getName(made)] = count;
        },
        &counts);
    return counts;
}

struct SoakTest : ToolkitTest {
    int any(int count) { return static_cast<int>(_random() % static_cast<unsigned>(count)); }

    // One item of each type, in any order, some hidden, some disabled, all with a text.
    void fill(_Opaque_ADMDialog* dialog) {
        static const char* const types[] = {kADMTextPushButtonType,  kADMTextCheckBoxType,
                                            kADMTextRadioButtonType, kADMTextEditType,
                                            kADMTextStaticType,      kADMFrameType,
                                            kADMPopupListType,       kADMSliderType,
                                            kADMPictureStaticType,   kADMPicturePushButtonType};
        for (int i = 0; i < 12; ++i) {
            const auto y = static_cast<std::int16_t>(20 * i);
            const Rect r = {y, 10, static_cast<std::int16_t>(y + 20), 150};
            _Opaque_ADMItem* item =
                sADMItem->Create(dialog, 1 + any(30), types[any(10)], &r, nullptr, nullptr, 0);
            sADMItem->SetMaxFloatValue(item, 100);
            sADMItem->SetFont(item, any(14));
            sADMItem->SetText(item, any(2) ? "some text" : "");
            sADMItem->Enable(item, any(4) != 0);
            sADMItem->Show(item, any(5) != 0);
            _Opaque_ADMList* list = sADMItem->GetList(item);
            for (int n = any(4); n > 0; --n)
                sADMEntry->SetText(sADMList->InsertEntry(list, 0), "entry");
            if (any(3) == 0) sADMList->RemoveEntry(list, 0);
        }
    }

    void use(_Opaque_ADMDialog* dialog) {
        NSView* view = view_of(dialog);
        for (int i = 0; i < 4; ++i) {
            user::click_at(view, NSMakePoint(any(200), any(260)));
            user::type([view window], any(2) ? "4" : "\t");
            user::press_key([view window], @"\x1b");
        }
        [view display];
        for (_Opaque_ADMItem* item = adm::first_item(dialog); item;
             item = sADMDialog->GetNextItem(dialog, item)) {
            sADMItem->GetFloatValue(item);
            sADMItem->GetIntValue(item);
            bounds(item);
        }
    }

    void one_dialog(bool in_panel) {
        Pool pool;
        _Opaque_ADMDialog* dialog =
            in_panel
                ? sADMDialog->CreatePanel(nullptr, "panel", 0, nullptr, nullptr, &FakeHost::panels,
                                          nullptr, [_window contentView], &_functions, &_refcon)
                : sADMDialog->Create(nullptr, "window", 0, any(12), nullptr, nullptr, 0);
        fill(dialog);
        sADMDialog->Show(dialog, true);
        use(dialog);
        sADMDialog->Destroy(dialog);
    }

    std::mt19937 _random{20240607};
};

} // namespace

TEST_F(SoakTest, AThousandDialogsLeaveNothingAlive) {
    for (int i = 0; i < 20; ++i) one_dialog(i % 2);
    const Counts before = live_objects();
    for (int i = 0; i < 1000; ++i) one_dialog(i % 2);
    EXPECT_EQ(live_objects(), before);
}
