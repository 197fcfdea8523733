#include "ADMLibrary/ADM_Mac64/iADMDrawer.h"

#include "ADMLibrary/ADM_Mac64/AEColors.h"
#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADM_Mac64/iADMImage.h"
#include "ADMLibrary/ADM_Mac64/iADMItem.h"

namespace {

constexpr PF_App_Color kDarkGrey = {0x2000, 0x2000, 0x2000};
constexpr PF_App_Color kBlack = {0, 0, 0};

struct SymbolicColor {
    ADMColor value;
    short selector;
    const PF_App_Color* outside_panels; // null: the host's colour there too
};

constexpr SymbolicColor kSymbolicColors[] = {
    {0, 42, nullptr},     {1, 43, nullptr}, {2, 5, nullptr},        {3, 16, nullptr},
    {4, 3, nullptr},      {5, 1, nullptr},  {6, 6, nullptr},        {7, 23, &kDarkGrey},
    {13, 1, nullptr},     {14, 0, nullptr}, {15, kAEText, &kBlack}, {16, 45, nullptr},
    {26, 23, &kDarkGrey},
};

const SymbolicColor* find_color(ADMColor value) {
    for (const SymbolicColor& color : kSymbolicColors)
        if (color.value == value) return &color;
    return nullptr;
}

} // namespace

bool iADMDrawer::_useAppColor = false;

void iADMDrawer::SetADMColor(ADMColor color) {
    const SymbolicColor* found = find_color(color);
    if (!found) return;
    const PF_App_Color rgb = found->outside_panels && !_useAppColor
                                 ? *found->outside_panels
                                 : adm::host_color(found->selector);
    const float red = rgb.red / 65535.0f;
    const float green = rgb.green / 65535.0f;
    const float blue = rgb.blue / 65535.0f;
    CGContextSetRGBFillColor(context, red, green, blue, 1);
    CGContextSetRGBStrokeColor(context, red, green, blue, 1);
}

void iADMDrawer::GetBoundsRect(Rect* bounds) const {
    if (item)
        *bounds = item->_control ? adm::rect_of([item->_control bounds]) : Rect{0, 0, 0, 0};
    else if (image)
        *bounds = {0, 0, adm::wrap16(image->GetHeight()), adm::wrap16(image->GetWidth())};
}

void iADMDrawer::FillRect(const Rect* r) {
    CGContextFillRect(context, adm::frame_of(*r));
}

void iADMDrawer::DrawRect(const Rect* r) {
    CGContextStrokeRect(context, adm::frame_of(*r));
}

void iADMDrawer::ClearRect(const Rect* r) {
    CGContextClearRect(context, adm::frame_of(*r));
}

void iADMDrawer::FillPolygon(const Point* points, int count) {
    if (count < 1) return;
    CGContextBeginPath(context);
    CGContextMoveToPoint(context, points[0].h, points[0].v);
    for (int i = 1; i < count; ++i) CGContextAddLineToPoint(context, points[i].h, points[i].v);
    CGContextClosePath(context);
    CGContextFillPath(context);
}

void iADMDrawer::DrawLine(const Point* from, const Point* to) {
    CGContextBeginPath(context);
    CGContextMoveToPoint(context, from->h, from->v);
    CGContextAddLineToPoint(context, to->h, to->v);
    CGContextStrokePath(context);
}

// Neither the image's context nor this one is flipped for it: the top of the image is drawn at the
// top.
void iADMDrawer::DrawADMImage(iADMImage* source, const Point* at) {
    CGImageRef copy = CGBitmapContextCreateImage(source->context);
    if (!copy) return;
    CGContextDrawImage(context, CGRectMake(at->h, at->v, source->GetWidth(), source->GetHeight()),
                       copy);
    CGImageRelease(copy);
}
