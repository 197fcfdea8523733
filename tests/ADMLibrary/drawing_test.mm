#include "tests/ADMLibrary/support/Canvas.h"
#include "tests/ADMLibrary/support/ToolkitTest.h"

#include "ADMLibrary/ADM_Mac64/iADMImage.h"

namespace {

struct DrawingTest : testing::Test {
    Pool _pool;
    FakeHost _host;
    Canvas _canvas{40, 40};
    iADMDrawer _record{_canvas.context()};
    _Opaque_ADMDrawer* _drawer = adm::handle(&_record);
};

void fill(_Opaque_ADMDrawer* drawer, ADMColor color, const Rect& r) {
    sADMDrawer->SetADMColor(drawer, color);
    sADMDrawer->FillRect(drawer, &r);
}

} // namespace

TEST_F(DrawingTest, SymbolicColoursAreTheHosts) {
    const std::pair<ADMColor, short> cases[] = {{0, 42}, {1, 43},  {2, 5},  {3, 16}, {4, 3},
                                                {5, 1},  {6, 6},   {7, 23}, {13, 1}, {14, 0},
                                                {15, 2}, {16, 45}, {26, 23}};
    const bool before = iADMDrawer::_useAppColor;
    const auto filled = [this](ADMColor color) {
        fill(_drawer, color, {0, 0, 9, 9});
        return _canvas.at(5, 5);
    };
    for (const auto& [color, selector] : cases) {
        iADMDrawer::_useAppColor = true;
        EXPECT_EQ(filled(color), FakeHost::color(selector)) << color;
        iADMDrawer::_useAppColor = false;
        const Rgb outside_panels = color == 7 || color == 26 ? Rgb{32, 32, 32}
                                   : color == 15             ? Rgb{}
                                                             : FakeHost::color(selector);
        EXPECT_EQ(filled(color), outside_panels) << color;
    }
    for (ADMColor unsupported : {-1, 8, 12, 17, 25, 27})
        EXPECT_EQ(filled(unsupported), (Rgb{32, 32, 32})) << unsupported;
    iADMDrawer::_useAppColor = before;
}

TEST_F(DrawingTest, ShapesCoverWhatTheySay) {
    const Rgb ink = FakeHost::color(1);
    sADMDrawer->SetADMColor(_drawer, 5);
    const Point corners[] = {{10, 10}, {10, 30}, {30, 10}};
    for (int too_few : {0, -3, 1}) sADMDrawer->FillPolygon(_drawer, corners, too_few);
    EXPECT_EQ(_canvas.count(Canvas::kWhite), 320 * 320);
    sADMDrawer->FillPolygon(_drawer, corners, 3);
    EXPECT_EQ(_canvas.at(18, 18), ink);
    EXPECT_EQ(_canvas.at(21, 21), Canvas::kWhite);
    const Point from = {35, 0};
    const Point to = {35, 40};
    sADMDrawer->DrawLine(_drawer, &from, &to);
    EXPECT_EQ(_canvas.count(NSMakeRect(0, 33, 40, 4), ink), 40 * 64);
    const Rect all = {0, 0, 40, 40};
    const Rect box = {10, 5, 20, 35};
    sADMDrawer->ClearRect(_drawer, &all);
    sADMDrawer->DrawRect(_drawer, &box); // a line of width 1 along the edges
    EXPECT_EQ(_canvas.count(ink), (31 * 11 - 29 * 9) * 64);
}

TEST_F(DrawingTest, AnImageIsTransparentAtFirstAndKeepsWhatIsDrawn) {
    _Opaque_ADMImage* image = sADMImage->CreateOffscreen(10, 4, 7);
    EXPECT_EQ(sADMImage->GetWidth(image), 10);
    EXPECT_EQ(sADMImage->GetHeight(image), 4);
    const Point at = {5, 7};
    sADMDrawer->DrawADMImage(_drawer, image, &at);
    EXPECT_EQ(_canvas.count(Canvas::kWhite), 320 * 320);

    _Opaque_ADMDrawer* inside = sADMImage->BeginADMDrawer(image);
    Rect all = {};
    sADMDrawer->GetBoundsRect(inside, &all);
    EXPECT_EQ(all, (Rect{0, 0, 4, 10}));
    fill(inside, 0, all);
    fill(inside, 1, {0, 0, 2, 5});
    sADMImage->EndADMDrawer(image);
    sADMDrawer->DrawADMImage(_drawer, image, &at);
    const std::pair<NSPoint, Rgb> seen[] = {
        {{8, 5.5}, FakeHost::color(43)},    {{8, 8.5}, FakeHost::color(42)},
        {{16.5, 5.5}, FakeHost::color(42)}, {{6.8, 7}, Canvas::kWhite},
        {{17.2, 7}, Canvas::kWhite},        {{12, 4.8}, Canvas::kWhite},
        {{12, 9.2}, Canvas::kWhite}};
    for (const auto& [p, color] : seen) EXPECT_EQ(_canvas.at(p.x, p.y), color) << p.x << "," << p.y;
    sADMImage->Destroy(image);
}

TEST_F(DrawingTest, ImagesOfNoSizeOrTooManyBytesAreRefused) {
    const std::pair<int, int> sizes[] = {{0, 4},   {4, 0},       {-1, 4},
                                         {-4, -4}, {1 << 30, 1}, {65536, 65536}};
    for (const auto& [width, height] : sizes)
        EXPECT_EQ(sADMImage->CreateOffscreen(width, height, 0), nullptr) << width;
}
