// Many dialogs, used at random and destroyed, leave nothing behind.

#include "tests/ADMLibrary/support/ToolkitTest.h"

#include <Foundation/NSLiveObjects.h>
#include <map>
#include <random>

namespace {

using Counts = std::map<std::string, NSUInteger>;

Counts live_objects() {
    Counts counts;
    const auto note = [](Class made, NSUInteger count, void* context) {
        (*static_cast<Counts*>(context))[class_getName(made)] = count;
    };
    NSVisitLiveObjects(note, &counts);
    return counts;
}

struct SoakTest : ToolkitTest {
    int any(int count) { return static_cast<int>(_random() % static_cast<unsigned>(count)); }

    // Items of any type, some hidden, some disabled, some with a text or entries.
    void fill(_Opaque_ADMDialog* dialog) {
        static const char* const types[] = {kADMTextPushButtonType,  kADMTextCheckBoxType,
                                            kADMTextRadioButtonType, kADMTextEditType,
                                            kADMTextStaticType,      kADMFrameType,
                                            kADMPopupListType,       kADMSliderType,
                                            kADMPictureStaticType,   kADMPicturePushButtonType};
        for (std::int16_t y = 0; y < 240; y += 20) {
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
            user::type(any(2) ? @"4\t" : @"x\x1b");
        }
        [view display];
        for (_Opaque_ADMItem* item = adm::first_item(dialog); item;
             item = sADMDialog->GetNextItem(dialog, item)) {
            sADMItem->GetFloatValue(item);
            sADMItem->GetIntValue(item);
        }
    }

    void some_dialogs(int count) {
        for (int i = 0; i < count; ++i) {
            Pool pool;
            _Opaque_ADMDialog* dialog = i % 2 ? make_panel() : make_window(any(12));
            fill(dialog);
            sADMDialog->Show(dialog, true);
            use(dialog);
            sADMDialog->Destroy(dialog);
        }
    }

    std::mt19937 _random{20240607};
};

} // namespace

TEST_F(SoakTest, AThousandDialogsLeaveNothingAlive) {
    some_dialogs(20); // makes what is made once and kept
    const Counts before = live_objects();
    some_dialogs(1000);
    EXPECT_EQ(live_objects(), before);
}
