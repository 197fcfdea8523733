#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMImage.h"
#include "ADMLibrary/BaseADMDialog.h"
#include "ADMLibrary/CustomIcon.h"

#include <memory>

namespace {

using Calls = std::vector<std::string>;
Calls calls;

struct LoggingDialog : BaseADMDialog {
    explicit LoggingDialog(int init_result = 0) : result(init_result) { calls.clear(); }
    ~LoggingDialog() override { calls.push_back("deleted"); }
    int Init() override {
        BaseADMDialog::Init();
        calls.push_back(handle() ? "init bound" : "init");
        const Rect r = {10, 10, 30, 60};
        sADMItem->Create(*this, 1, kADMTextPushButtonType, &r, nullptr, nullptr, 0);
        return result;
    }
    void Notify(IADMNotifier) override { calls.push_back("notify"); }
    void Destroy() override { calls.push_back("destroy"); }
    _Opaque_ADMDialog* handle() const { return *this; }
    int result;
};

struct WrapperTest : ToolkitTest {
    _Opaque_ADMDialog* panel(BaseADMDialog& wrapper) {
        return wrapper.CreatePanel(nullptr, "", 0, &FakeHost::panels, nullptr,
                                   [_window contentView], &_functions, &_refcon);
    }
    NSUInteger panels() { return [[[_window contentView] subviews] count]; }
};

struct Picture : BaseADMImageItem {
    Picture(_Opaque_ADMItem* item, bool through_image)
        : BaseADMImageItem(item, nullptr), with_image(through_image) {}
    bool UseImage() const override { return with_image; }
    void Draw(IADMDrawer drawer) override {
        image = adm::record(static_cast<_Opaque_ADMDrawer*>(drawer))->image;
        sADMDrawer->GetBoundsRect(drawer, &bounds);
        const Rect r = {0, 0, 5, 5};
        sADMDrawer->SetADMColor(drawer, 16);
        sADMDrawer->FillRect(drawer, &r);
    }
    bool with_image;
    iADMImage* image = nullptr;
    Rect bounds = {};
};

} // namespace

TEST_F(WrapperTest, DeletingTheWrapperDestroysItsDialogsWithoutCallingBack) {
    auto wrapper = std::make_unique<LoggingDialog>();
    _Opaque_ADMDialog* made = panel(*wrapper);
    EXPECT_EQ(made, wrapper->handle());
    user::click(control_of(sADMDialog->GetItem(wrapper->handle(), 1)));
    panel(*wrapper); // the host has replaced its panel without notice
    EXPECT_EQ(panels(), 2u);
    wrapper.reset();
    EXPECT_EQ(calls, (Calls{"init bound", "notify", "init bound", "deleted"}));
    EXPECT_EQ(panels(), 0u);
}

TEST_F(WrapperTest, DestroyingTheDialogDeletesTheWrapperUnlessItIsToStay) {
    sADMDialog->Destroy(panel(*new LoggingDialog));
    EXPECT_EQ(calls, (Calls{"init bound", "destroy", "deleted"}));

    LoggingDialog kept;
    kept.SetDeleteOnDestroy(false);
    sADMDialog->Destroy(panel(kept));
    EXPECT_EQ(calls, (Calls{"init bound", "destroy"}));
    EXPECT_EQ(kept.handle(), nullptr);
    char name[] = "again";
    EXPECT_NE(kept.Create(nullptr, name, 0, 3, 0), nullptr);
}

TEST_F(WrapperTest, AFailingInitLeavesTheWrapperToItsOwner) {
    auto wrapper = std::make_unique<LoggingDialog>();
    panel(*wrapper);
    wrapper->result = 9;
    EXPECT_EQ(panel(*wrapper), nullptr);
    EXPECT_EQ(wrapper->handle(), nullptr);
    EXPECT_EQ(_refcon, nullptr);
    EXPECT_EQ(calls, (Calls{"init bound", "init bound", "destroy"}));
    EXPECT_EQ(panels(), 1u); // the earlier one, which the wrapper destroys
    wrapper.reset();
    EXPECT_EQ(panels(), 0u);
}

TEST_F(WrapperTest, AnItemAsAnObjectReadsAndWritesItsOwnNumbers) {
    struct Percent : BaseADMItem {
        bool TextToFloat(const char* text, float& value) override {
            return BaseADMItem::TextToFloat(text, value) && (value /= 100, true);
        }
    };
    auto wrapper = std::make_unique<Percent>();
    _Opaque_ADMItem* item = wrapper->Create(dialog(), {10, 20, 30, 90}, kADMTextEditType, 77);
    EXPECT_EQ(bounds(item), (Rect{10, 20, 25, 90}));
    sADMItem->SetMaxFloatValue(item, 10);
    put(item, "50");
    EXPECT_EQ(sADMItem->GetFloatValue(item), 0.5f);
    char text[48];
    EXPECT_EQ(BaseADMItem::FloatToTextProc(item, 2.5f, text, 48), 1);
    EXPECT_STREQ(text, "2.5");
    wrapper.reset();
    EXPECT_EQ(sADMItem->GetUserData(item), nullptr);
    put(item, "4"); // the item stays in its dialog without the wrapper
    EXPECT_EQ(sADMItem->GetFloatValue(item), 4);
}

TEST_F(WrapperTest, AButtonThatIsWrappedKeepsItsTitle) {
    for (const char* type : {kADMTextPushButtonType, kADMTextCheckBoxType}) {
        _Opaque_ADMItem* item = add(type, {0, 0, 20, 80});
        sADMItem->SetText(item, "Title");
        NSString* before = [(NSButton*)control_of(item) title];
        const BaseADMItem wrapper(item, nullptr);
        EXPECT_TRUE([[(NSButton*)control_of(item) title] isEqualToString:before]);
    }
}

TEST_F(WrapperTest, APictureIsDrawnThroughAnImageOfItsSize) {
    for (bool through_image : {true, false}) {
        _Opaque_ADMItem* item = add(kADMPictureStaticType, {0, 0, 20, 30});
        Picture picture(item, through_image);
        Canvas canvas(40, 40);
        const auto draw = [&](Rect size) {
            sADMItem->SetLocalRect(item, &size);
            [[control_of(item) cell] drawWithFrame:[control_of(item) bounds] inView:nil];
            EXPECT_EQ(picture.bounds, size);
            return picture.image;
        };
        iADMImage* first = draw({0, 0, 20, 30});
        EXPECT_EQ(canvas.at(2, 2), FakeHost::color(45));
        EXPECT_EQ(canvas.at(7, 7), Canvas::kWhite);
        EXPECT_EQ(draw({0, 0, 20, 30}), first);
        EXPECT_EQ(first != nullptr, through_image);
        EXPECT_EQ(draw({0, 0, 20, 31}) != nullptr, through_image); // an image of the new size
        EXPECT_EQ(draw({0, 0, 0, 0}), nullptr);                    // no image can be that small
    }
}
