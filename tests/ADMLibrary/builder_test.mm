#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/BaseDlg.h"

namespace {

struct Dialog : BaseDlg {
    ~Dialog() override {
        for (BaseADMItem* icon : icons()) delete icon;
    }
    using BaseDlg::icons;
    _Opaque_ADMDialog* handle() const { return *this; }
};

struct BuilderTest : ToolkitTest {
    BuilderTest() {
        _dlg.CreatePanel(nullptr, "", 0, &FakeHost::panels, nullptr, [_window contentView],
                         &_functions, &_refcon);
    }
    Dialog _dlg;
};

void paint(_Opaque_ADMItem*, _Opaque_ADMDrawer* drawer) {
    const Rect r = {0, 0, 10, 10};
    sADMDrawer->SetADMColor(drawer, 16);
    sADMDrawer->FillRect(drawer, &r);
}

} // namespace

TEST_F(BuilderTest, TextsTakeTheSizeTheyNeed) {
    _Opaque_ADMItem* const items[] = {
        _dlg.add_static({40, 14}, "From Center", 272),
        _dlg.add_radio({26, 324, 17, 9}, "Towards Camera", 503, 0),
        _dlg.add_checkbox({125, 29, 18, 400}, "Distribute Randomly", 216, 1)};
    for (_Opaque_ADMItem* item : items) {
        const Rect found = bounds(item);
        EXPECT_EQ((Point{static_cast<std::int16_t>(found.bottom - found.top),
                         static_cast<std::int16_t>(found.right - found.left)}),
                  best(item));
        EXPECT_GT(best(item).h, 45);
        EXPECT_LT(best(item).h, 200);
    }
    EXPECT_EQ(bounds(items[0]).left, 14);
}

TEST_F(BuilderTest, TheLowByteOfAValueCounts) {
    const std::pair<int, bool> cases[] = {{0, false}, {1, true}, {256, false}, {-1, true}};
    int id = 100;
    for (const auto& [value, on] : cases) {
        _Opaque_ADMItem* check = _dlg.add_checkbox({0, 0, 17, 99}, "c", ++id, value);
        EXPECT_EQ(sADMItem->GetBooleanValue(check), on) << value;
        _Opaque_ADMItem* radio = _dlg.add_radio({0, 0, 17, 99}, "r", ++id, value);
        EXPECT_EQ(sADMItem->GetBooleanValue(radio), on) << value;
    }
}

TEST_F(BuilderTest, EditsAreSetAgainstTheirRange) {
    _Opaque_ADMItem* edit = _dlg.add_edit({38, 29, 20, 75}, 210, 0.1f, 1e7f, 1000);
    EXPECT_EQ(shown(edit), "1000");
    put(edit, "0");
    EXPECT_EQ(sADMItem->GetFloatValue(edit), 0.1f);
    _Opaque_ADMItem* beyond = _dlg.add_edit({38, 29, 20, 75}, 211, 1, 5, 77);
    EXPECT_EQ(shown(beyond), "77");
    EXPECT_EQ(sADMItem->GetIntValue(beyond), 5);
}

TEST_F(BuilderTest, EnablingWalksAllItemsWhenTheDialogChanges) {
    _Opaque_ADMItem* const items[] = {_dlg.add_edit({0, 0, 20, 75}, 1, 0, 1, 1),
                                      _dlg.add_static({0, 0}, "text", 2),
                                      _dlg.add_icon({0, 0, 20, 20}, paint, 3)};
    _dlg.Enable(false); // already disabled
    EXPECT_TRUE(sADMItem->IsEnabled(items[0]));
    for (unsigned char on : {1, 0, 2}) {
        _dlg.Enable(on);
        for (_Opaque_ADMItem* item : items) EXPECT_EQ(sADMItem->IsEnabled(item), on != 0);
    }
    sADMItem->Enable(items[0], false);
    _dlg.Enable(true); // already enabled
    EXPECT_FALSE(sADMItem->IsEnabled(items[0]));
    sSPBasic = nullptr;
    EXPECT_THROW(Dialog{}, int);
}

TEST_F(BuilderTest, AWindowIsCentredOnTheScreenAndNeverBeyondItsTopLeft) {
    const NSSize screen = [[NSScreen mainScreen] visibleFrame].size;
    const int width = static_cast<int>(screen.width);
    const int height = static_cast<int>(screen.height);
    Dialog dlg;
    char name[] = "window";
    dlg.Create(nullptr, name, 0, 6, 0);
    const auto centred = [&dlg](std::int16_t h, int w) {
        dlg.SetLocalRect({0, 0, h, static_cast<std::int16_t>(w)});
        dlg.MoveToScreenCenter();
        return bounds(dlg.handle());
    };
    EXPECT_EQ(centred(451, 501).left, (width - 501) / 2);
    EXPECT_EQ(centred(451, 501).top, (height - 451) / 2);
    EXPECT_EQ(centred(300, width + 100).left, 0);
    EXPECT_EQ(centred(300, width + 100).right, width + 100);
}
