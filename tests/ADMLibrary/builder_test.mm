#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/BaseDlg.h"

#include <memory>

namespace {

struct Dialog : BaseDlg {
    using BaseDlg::icons;
    _Opaque_ADMDialog* handle() const { return *this; }
};

struct BuilderTest : ToolkitTest {
    BuilderTest() : _dlg(std::make_unique<Dialog>()) {
        _dlg->CreatePanel(nullptr, "", 0, &FakeHost::panels, nullptr, [_window contentView],
                          &_functions, &_refcon);
    }
    static Point best(_Opaque_ADMItem* item) {
        Point size = {0, 0};
        sADMItem->GetBestSize(item, &size);
        return size;
    }
    std::unique_ptr<Dialog> _dlg;
};

void paint(_Opaque_ADMItem*, _Opaque_ADMDrawer* drawer) {
    const Rect r = {0, 0, 10, 10};
    sADMDrawer->SetADMColor(drawer, 16);
    sADMDrawer->FillRect(drawer, &r);
}

} // namespace

TEST_F(BuilderTest, RectanglesAreGivenByHeightAndWidth) {
    _Opaque_ADMItem* apply = _dlg->add_ctrl(kADMTextPushButtonType, {420, 434, 20, 58}, "Apply", 3);
    EXPECT_EQ(bounds(apply), (Rect{420, 434, 440, 492}));
    EXPECT_EQ(sADMItem->GetID(apply), 3);
    EXPECT_STREQ([[(NSButton*)control_of(apply) title] UTF8String], "Apply");
    EXPECT_NE(_dlg->add_ctrl(kADMPopupListType, {66, 342, 19, 140}, nullptr, 510), nullptr);
}

TEST_F(BuilderTest, TextsTakeTheSizeTheyNeed) {
    const auto same_corner = [](Rect at, Point size) {
        return Rect{at.top, at.left, static_cast<std::int16_t>(at.top + size.v),
                    static_cast<std::int16_t>(at.left + size.h)};
    };
    _Opaque_ADMItem* text = _dlg->add_static({40, 14}, "From Center", 272);
    EXPECT_EQ(bounds(text), same_corner({40, 14, 0, 0}, best(text)));
    for (_Opaque_ADMItem* button :
         {_dlg->add_radio({26, 324, 17, 9}, "Towards Camera", 503, 0),
          _dlg->add_checkbox({125, 29, 18, 400}, "Distribute Randomly", 216, 1)}) {
        const Rect found = bounds(button);
        EXPECT_EQ(found, same_corner(found, best(button)));
        EXPECT_GT(found.right - found.left, 60);
        EXPECT_LT(found.right - found.left, 200);
    }
}

TEST_F(BuilderTest, TheLowByteOfAValueCounts) {
    struct Case {
        int value;
        bool on;
    };
    int id = 100;
    for (const Case& c : {Case{0, false}, {1, true}, {256, false}, {-1, true}, {128, true}}) {
        EXPECT_EQ(sADMItem->GetBooleanValue(_dlg->add_checkbox({0, 0, 17, 99}, "c", ++id, c.value)),
                  c.on)
            << c.value;
        EXPECT_EQ(sADMItem->GetBooleanValue(_dlg->add_radio({0, 0, 17, 99}, "r", ++id, c.value)),
                  c.on)
            << c.value;
    }
}

TEST_F(BuilderTest, EditsAreSetAgainstTheirRange) {
    _Opaque_ADMItem* edit = _dlg->add_edit({38, 29, 20, 75}, 210, 0.1f, 1e7f, 1000);
    EXPECT_EQ(shown(edit), "1000");
    put(edit, "0");
    EXPECT_EQ(sADMItem->GetFloatValue(edit), 0.1f);
    _Opaque_ADMItem* beyond = _dlg->add_edit({38, 29, 20, 75}, 211, 1, 5, 77);
    EXPECT_EQ(shown(beyond), "77");
    EXPECT_EQ(sADMItem->GetIntValue(beyond), 5);
}

TEST_F(BuilderTest, AnIconIsPaintedByItsFunctionAndListed) {
    _Opaque_ADMItem* icon = _dlg->add_icon({10, 10, 20, 20}, paint, 9);
    ASSERT_EQ(_dlg->icons().size(), 1u);
    BaseADMItem* wrapper = _dlg->icons().front();
    Canvas canvas(30, 30);
    canvas.draw([control_of(icon) cell], [control_of(icon) bounds]);
    EXPECT_EQ(canvas.at(5, 5), FakeHost::color(45));
    EXPECT_EQ(canvas.at(15, 15), (Rgb{255, 255, 255}));
    _dlg->Destroy();
    EXPECT_TRUE(_dlg->icons().empty());
    delete wrapper;
}

TEST_F(BuilderTest, ItemsThatCannotBeMadeAreNull) {
    Dialog unbound;
    EXPECT_EQ(unbound.add_static({0, 0}, "text", 1), nullptr);
    EXPECT_EQ(unbound.add_frame({0, 0, 9, 9}, "text", 1, 4), nullptr);
    EXPECT_EQ(unbound.add_edit({0, 0, 9, 9}, 1, 0, 1, 1), nullptr);
    EXPECT_EQ(unbound.add_icon({0, 0, 9, 9}, paint, 1), nullptr);
    ASSERT_EQ(unbound.icons().size(), 1u);
    unbound.Enable(true);
    EXPECT_TRUE(unbound.IsEnabled());
    delete unbound.icons().front();
}

TEST_F(BuilderTest, EnablingWalksAllItemsWhenTheDialogChanges) {
    _Opaque_ADMItem* edit = _dlg->add_edit({0, 0, 20, 75}, 1, 0, 1, 1);
    _Opaque_ADMItem* text = _dlg->add_static({0, 0}, "text", 2);
    _Opaque_ADMItem* icon = _dlg->add_icon({0, 0, 20, 20}, paint, 3);
    EXPECT_FALSE(_dlg->IsEnabled());
    _dlg->Enable(false); // it is so already
    EXPECT_TRUE(sADMItem->IsEnabled(edit));
    _dlg->Enable(true);
    _dlg->Enable(false);
    for (_Opaque_ADMItem* item : {edit, text, icon}) EXPECT_FALSE(sADMItem->IsEnabled(item));
    _dlg->Enable(2);
    for (_Opaque_ADMItem* item : {edit, text, icon}) EXPECT_TRUE(sADMItem->IsEnabled(item));
    EXPECT_TRUE(_dlg->IsEnabled());
    sADMItem->Enable(edit, false);
    _dlg->Enable(true); // it is so already
    EXPECT_FALSE(sADMItem->IsEnabled(edit));
    delete _dlg->icons().front();
}

TEST_F(BuilderTest, AWindowIsCentredOnTheScreenAndNeverBeforeIt) {
    const NSRect screen = [[NSScreen mainScreen] visibleFrame];
    const int width = static_cast<int>(screen.size.width);
    const int height = static_cast<int>(screen.size.height);
    Dialog dlg;
    char name[] = "window";
    dlg.Create(nullptr, name, 0, 6, 0);
    const auto centred = [&dlg](std::int16_t h, std::int16_t w) {
        dlg.SetLocalRect({0, 0, h, w});
        dlg.MoveToScreenCenter();
        Rect r = {};
        sADMDialog->GetBoundsRect(dlg.handle(), &r);
        return r;
    };
    EXPECT_EQ(centred(451, 501).left, (width - 501) / 2);
    EXPECT_EQ(centred(451, 501).top, (height - 451) / 2);
    const Rect large = centred(300, static_cast<std::int16_t>(width + 100));
    EXPECT_EQ(large.left, 0);
    EXPECT_EQ(large.right, width + 100);
    EXPECT_EQ(large.top, (height - 300) / 2);
}

TEST_F(BuilderTest, WithoutTheHostThereIsNoDialog) {
    sSPBasic = nullptr;
    EXPECT_THROW(Dialog{}, int);
}
