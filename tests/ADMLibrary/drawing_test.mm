#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMImage.h"

#include <cmath>
#include <memory>

namespace {

struct DrawingTest : testing::Test {
    DrawingTest() : _canvas(40, 40), _record(_canvas.context()) {}

    Rgb filled(ADMColor color) {
        const Rect all = {0, 0, 40, 40};
        sADMDrawer->SetADMColor(drawer(), color);
        sADMDrawer->FillRect(drawer(), &all);
        return _canvas.at(20, 20);
    }
    _Opaque_ADMDrawer* drawer() { return adm::handle(&_record); }

    Pool _pool;
    FakeHost _host;
    Canvas _canvas;
    iADMDrawer _record;
};

struct DestroyImage {
    void operator()(_Opaque_ADMImage* image) const { sADMImage->Destroy(image); }
};
using Image = std::unique_ptr<_Opaque_ADMImage, DestroyImage>;

constexpr Rgb kWhite = {255, 255, 255};

} // namespace

TEST_F(DrawingTest, SymbolicColoursAreTheHosts) {
    struct Case {
        ADMColor color;
        short selector;
        Rgb outside_panels;
    };
    const auto same = [](short selector) { return FakeHost::color(selector); };
    const Rgb grey = {32, 32, 32};
    const Case cases[] = {{0, 42, same(42)}, {1, 43, same(43)}, {2, 5, same(5)}, {3, 16, same(16)},
                          {4, 3, same(3)},   {5, 1, same(1)},   {6, 6, same(6)}, {7, 23, grey},
                          {13, 1, same(1)},  {14, 0, same(0)},  {15, 2, {}},     {16, 45, same(45)},
                          {26, 23, grey}};
    const bool before = iADMDrawer::_useAppColor;
    for (const Case& c : cases) {
        iADMDrawer::_useAppColor = false;
        EXPECT_EQ(filled(c.color), c.outside_panels) << c.color;
        iADMDrawer::_useAppColor = true;
        EXPECT_EQ(filled(c.color), FakeHost::color(c.selector)) << c.color;
    }
    filled(2);
    for (ADMColor unsupported : {-1, 8, 12, 17, 25, 27, 1000})
        EXPECT_EQ(filled(unsupported), FakeHost::color(5)) << unsupported;
    iADMDrawer::_useAppColor = before;
}

TEST_F(DrawingTest, ShapesCoverWhatTheySay) {
    const Rgb ink = FakeHost::color(1);
    const Rect box = {10, 5, 20, 35};
    sADMDrawer->SetADMColor(drawer(), 5);
    sADMDrawer->DrawRect(drawer(), &box); // a line of width 1 around the edges
    EXPECT_EQ(_canvas.count(NSMakeRect(0, 0, 40, 40), ink), (31 * 11 - 29 * 9) * 64);
    sADMDrawer->ClearRect(drawer(), &box);
    EXPECT_EQ(_canvas.at(20, 15), Rgb{});

    Canvas canvas(40, 40);
    iADMDrawer plain(canvas.context());
    _Opaque_ADMDrawer* second = adm::handle(&plain);
    sADMDrawer->SetADMColor(second, 5);
    const Point corners[] = {{10, 10}, {10, 30}, {30, 10}};
    sADMDrawer->FillPolygon(second, corners, 0);
    sADMDrawer->FillPolygon(second, corners, -3);
    sADMDrawer->FillPolygon(second, corners, 1);
    EXPECT_EQ(canvas.count(NSMakeRect(0, 0, 40, 40), kWhite), 320 * 320);
    sADMDrawer->FillPolygon(second, corners, 3);
    EXPECT_EQ(canvas.at(11, 11), ink);
    EXPECT_EQ(canvas.at(18, 18), ink);
    EXPECT_EQ(canvas.at(21, 21), kWhite);
    const Point from = {35, 0};
    const Point to = {35, 40};
    sADMDrawer->DrawLine(second, &from, &to);
    EXPECT_EQ(canvas.count(NSMakeRect(0, 33, 40, 4), ink), 40 * 64);
}

TEST_F(DrawingTest, BoundsAreTheItemsOrTheImagesOrUntouched) {
    Rect r = {1, 2, 3, 4};
    sADMDrawer->GetBoundsRect(drawer(), &r);
    EXPECT_EQ(r, (Rect{1, 2, 3, 4}));
    Image image(sADMImage->CreateOffscreen(10, 4, 0));
    sADMDrawer->GetBoundsRect(sADMImage->BeginADMDrawer(image.get()), &r);
    EXPECT_EQ(r, (Rect{0, 0, 4, 10}));

    iADMItem item;
    item._control = [[NSButton alloc] initWithFrame:NSMakeRect(30, 20, 12.9, 7)];
    iADMDrawer of_item(_canvas.context(), &item);
    sADMDrawer->GetBoundsRect(adm::handle(&of_item), &r);
    EXPECT_EQ(r, (Rect{0, 0, 7, 12}));
    sADMItem->DefaultDraw(adm::handle(&item), adm::handle(&of_item));
    EXPECT_EQ(of_item.result, -9874);
}

TEST_F(DrawingTest, AnImageIsTransparentAtFirstAndKeepsWhatIsDrawn) {
    Image image(sADMImage->CreateOffscreen(10, 4, 7));
    EXPECT_EQ(sADMImage->GetWidth(image.get()), 10);
    EXPECT_EQ(sADMImage->GetHeight(image.get()), 4);
    const Point at = {5, 7};
    sADMDrawer->DrawADMImage(drawer(), image.get(), &at);
    EXPECT_EQ(_canvas.count(NSMakeRect(0, 0, 40, 40), kWhite), 320 * 320);

    _Opaque_ADMDrawer* inside = sADMImage->BeginADMDrawer(image.get());
    const Rect all = {0, 0, 4, 10};
    const Rect top_left = {0, 0, 2, 5};
    sADMDrawer->SetADMColor(inside, 0);
    sADMDrawer->FillRect(inside, &all);
    sADMDrawer->SetADMColor(inside, 1);
    sADMDrawer->FillRect(inside, &top_left);
    sADMImage->EndADMDrawer(image.get());
    sADMDrawer->DrawADMImage(drawer(), image.get(), &at);
    EXPECT_EQ(_canvas.at(8, 5.5), FakeHost::color(43));
    EXPECT_EQ(_canvas.at(8, 8.5), FakeHost::color(42));
    EXPECT_EQ(_canvas.at(16.5, 5.5), FakeHost::color(42));
    for (const NSPoint& p :
         {NSMakePoint(6.8, 7), NSMakePoint(17.2, 7), NSMakePoint(12, 4.8), NSMakePoint(12, 9.2)})
        EXPECT_EQ(_canvas.at(p.x, p.y), kWhite) << p.x << ", " << p.y;
    sADMDrawer->DrawADMImage(drawer(), nullptr, &at);
}

TEST_F(DrawingTest, ImagesOfNoSizeOrTooManyBytesAreRefused) {
    const int sizes[][2] = {{0, 4},        {4, 0},
                            {-1, 4},       {4, -1},
                            {-4, -4},      {1 << 15, 1 << 15},
                            {1 << 30, 1},  {2147483647, 2147483647},
                            {65536, 65536}};
    for (const auto& size : sizes)
        EXPECT_EQ(sADMImage->CreateOffscreen(size[0], size[1], 0), nullptr) << size[0];
}
