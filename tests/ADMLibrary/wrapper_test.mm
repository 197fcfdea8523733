#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMDialog.h"
#include "ADMLibrary/BaseADMDialog.h"
#include "ADMLibrary/CustomIcon.h"

#include <memory>

namespace {

std::vector<std::string> log_of_calls;

struct LoggingDialog : BaseADMDialog {
    explicit LoggingDialog(int init_result = 0) : result(init_result) {}
    ~LoggingDialog() override { log_of_calls.push_back("deleted"); }
    int Init() override {
        BaseADMDialog::Init();
        log_of_calls.push_back(static_cast<_Opaque_ADMDialog*>(*this) ? "init bound" : "init");
        const Rect r = {10, 10, 30, 60};
        sADMItem->Create(*this, 1, kADMTextPushButtonType, &r, nullptr, nullptr, 0);
        return result;
    }
    void Notify(IADMNotifier notifier) override {
        log_of_calls.push_back("notify");
        BaseADMDialog::Notify(notifier);
    }
    void Destroy() override { log_of_calls.push_back("destroy"); }
    _Opaque_ADMDialog* handle() const { return *this; }
    int result;
};

struct WrapperTest : ToolkitTest {
    WrapperTest() { log_of_calls.clear(); }
    _Opaque_ADMDialog* panel(BaseADMDialog& wrapper) {
        return wrapper.CreatePanel(nullptr, "", 0, &FakeHost::panels, nullptr,
                                   [_window contentView], &_functions, &_refcon);
    }
    NSUInteger panels() { return [[[_window contentView] subviews] count]; }
};

using Calls = std::vector<std::string>;

} // namespace

TEST_F(WrapperTest, DeletingTheWrapperDestroysItsDialogsWithoutCallingBack) {
    auto wrapper = std::make_unique<LoggingDialog>();
    EXPECT_EQ(panel(*wrapper), wrapper->handle());
    EXPECT_EQ(panels(), 1u);
    user::click(control_of(sADMDialog->GetItem(wrapper->handle(), 1)));
    EXPECT_EQ(log_of_calls, (Calls{"init bound", "notify"}));
    panel(*wrapper); // the host makes its panel anew and tells nobody that the old one went
    EXPECT_EQ(panels(), 2u);
    log_of_calls.clear();
    wrapper.reset();
    EXPECT_EQ(log_of_calls, Calls{"deleted"});
    EXPECT_EQ(panels(), 0u);
}

TEST_F(WrapperTest, DestroyingTheDialogDeletesTheWrapperUnlessItIsToStay) {
    sADMDialog->Destroy(panel(*new LoggingDialog));
    EXPECT_EQ(log_of_calls, (Calls{"init bound", "destroy", "deleted"}));

    log_of_calls.clear();
    LoggingDialog kept;
    kept.SetDeleteOnDestroy(false);
    sADMDialog->Destroy(panel(kept));
    EXPECT_EQ(log_of_calls, (Calls{"init bound", "destroy"}));
    EXPECT_EQ(kept.handle(), nullptr);
    char name[] = "again";
    EXPECT_NE(kept.Create(nullptr, name, 0, 3, 0), nullptr);
}

TEST_F(WrapperTest, AFailingInitLeavesTheWrapperToItsOwner) {
    LoggingDialog wrapper(9);
    EXPECT_EQ(panel(wrapper), nullptr);
    EXPECT_EQ(wrapper.handle(), nullptr);
    EXPECT_EQ(log_of_calls, (Calls{"init bound", "destroy"}));
    EXPECT_EQ(panels(), 0u);
}

TEST_F(WrapperTest, CallbacksWithoutAWrapperDoNothing) {
    _Opaque_ADMItem* item = add(kADMTextEditType);
    float value = 3;
    char text[48] = "x";
    BaseADMDialog::NotifyProc(dialog(), nullptr);
    BaseADMDialog::DestroyProc(dialog());
    EXPECT_EQ(BaseADMDialog::TrackProc(dialog(), nullptr), 0);
    BaseADMItem::DrawProc(item, nullptr);
    BaseADMItem::DestroyProc(item);
    EXPECT_EQ(BaseADMItem::TextToFloatProc(item, "5", &value), 0);
    EXPECT_EQ(BaseADMItem::FloatToTextProc(item, 5, text, 48), 0);
    EXPECT_EQ(value, 3);
}

TEST_F(WrapperTest, AnItemAsAnObjectReadsAndWritesItsOwnNumbers) {
    struct Percent : BaseADMItem {
        bool TextToFloat(const char* text, float& value) override {
            return BaseADMItem::TextToFloat(text, value) && (value /= 100, true);
        }
    };
    auto wrapper = std::make_unique<Percent>();
    _Opaque_ADMItem* item =
        wrapper->Create(dialog(), IASRect(10, 20, 30, 90), kADMTextEditType, 77);
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(sADMItem->GetUserData(item), wrapper.get());
    EXPECT_EQ(adm::record(item)->_bounds, (Rect{10, 20, 30, 90}));
    sADMItem->SetMaxFloatValue(item, 10);
    put(item, "50");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 0.5f);
    char text[48];
    EXPECT_EQ(BaseADMItem::FloatToTextProc(item, 2.5f, text, 48), 1);
    EXPECT_STREQ(text, "2.5");
    wrapper.reset();
    EXPECT_EQ(sADMItem->GetUserData(item), nullptr);
    EXPECT_EQ(sADMDialog->GetItem(dialog(), 77), item); // it stays with its dialog
    put(item, "4");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
}

namespace {

struct Picture : BaseADMImageItem {
    Picture(_Opaque_ADMItem* item, bool through_image)
        : BaseADMImageItem(item, nullptr), with_image(through_image) {}
    bool UseImage() override { return with_image; }
    void Draw(IADMDrawer drawer) override {
        drawers.push_back(drawer);
        const Rect r = {0, 0, 5, 5};
        sADMDrawer->SetADMColor(drawer, 16);
        sADMDrawer->FillRect(drawer, &r);
    }
    bool with_image;
    std::vector<_Opaque_ADMDrawer*> drawers;
};

} // namespace

TEST_F(WrapperTest, APictureIsDrawnThroughAnImageOfItsSize) {
    _Opaque_ADMItem* item = add(kADMPictureStaticType, {0, 0, 20, 30});
    Picture picture(item, true);
    Canvas canvas(40, 40);
    const auto draw = [&] {
        canvas.draw([control_of(item) cell], [control_of(item) bounds]);
        return picture.drawers.back();
    };
    _Opaque_ADMDrawer* image = draw();
    EXPECT_EQ(canvas.at(2, 2), FakeHost::color(45));
    EXPECT_EQ(canvas.at(7, 7), (Rgb{255, 255, 255}));
    Rect r = {};
    sADMDrawer->GetBoundsRect(image, &r);
    EXPECT_EQ(r, (Rect{0, 0, 20, 30}));
    EXPECT_EQ(draw(), image);
    const Rect wider = {0, 0, 20, 31};
    sADMItem->SetLocalRect(item, &wider);
    image = draw();
    sADMDrawer->GetBoundsRect(image, &r);
    EXPECT_EQ(r, (Rect{0, 0, 20, 31}));
    const Rect none = {0, 0, 0, 0};
    sADMItem->SetLocalRect(item, &none); // no image of that size: straight into the item's drawer
    EXPECT_NE(draw(), image);
}

TEST_F(WrapperTest, APictureWithoutAnImageIsDrawnDirectly) {
    _Opaque_ADMItem* item = add(kADMPictureStaticType, {0, 0, 20, 30});
    Picture picture(item, false);
    Canvas canvas(40, 40);
    canvas.draw([control_of(item) cell], [control_of(item) bounds]);
    ASSERT_EQ(picture.drawers.size(), 1u);
    EXPECT_EQ(canvas.at(2, 2), FakeHost::color(45));
}
