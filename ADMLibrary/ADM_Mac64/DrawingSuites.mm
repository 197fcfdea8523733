// The drawer and image suites: check the handles, then call the records.

#include "ADMLibrary/ADM_Mac64/iADMImage.h"
#include "ADMLibrary/ADMDrawingSuites.h"

using adm::handle;
using adm::record;

void ADMDrawerSuite5::SetADMColor(_Opaque_ADMDrawer* drawer, ADMColor color) {
    if (drawer) record(drawer)->SetADMColor(color);
}

void ADMDrawerSuite5::GetBoundsRect(_Opaque_ADMDrawer* drawer, Rect* bounds) {
    if (drawer && bounds) record(drawer)->GetBoundsRect(bounds);
}

void ADMDrawerSuite5::FillRect(_Opaque_ADMDrawer* drawer, const Rect* r) {
    if (drawer && r) record(drawer)->FillRect(r);
}

void ADMDrawerSuite5::FillPolygon(_Opaque_ADMDrawer* drawer, const Point* points, int count) {
    if (drawer && points) record(drawer)->FillPolygon(points, count);
}

void ADMDrawerSuite5::DrawRect(_Opaque_ADMDrawer* drawer, const Rect* r) {
    if (drawer && r) record(drawer)->DrawRect(r);
}

void ADMDrawerSuite5::DrawLine(_Opaque_ADMDrawer* drawer, const Point* from, const Point* to) {
    if (drawer && from && to) record(drawer)->DrawLine(from, to);
}

void ADMDrawerSuite5::DrawADMImage(_Opaque_ADMDrawer* drawer, _Opaque_ADMImage* image,
                                   const Point* at) {
    if (drawer && image && at) record(drawer)->DrawADMImage(record(image), at);
}

void ADMDrawerSuite5::ClearRect(_Opaque_ADMDrawer* drawer, const Rect* r) {
    if (drawer && r) record(drawer)->ClearRect(r);
}

_Opaque_ADMImage* ADMImageSuite2::CreateOffscreen(int width, int height, int) {
    return handle(iADMImage::CreateOffscreen(width, height));
}

void ADMImageSuite2::Destroy(_Opaque_ADMImage* image) {
    delete record(image);
}

int ADMImageSuite2::GetWidth(_Opaque_ADMImage* image) {
    return image ? record(image)->GetWidth() : 0;
}

int ADMImageSuite2::GetHeight(_Opaque_ADMImage* image) {
    return image ? record(image)->GetHeight() : 0;
}

_Opaque_ADMDrawer* ADMImageSuite2::BeginADMDrawer(_Opaque_ADMImage* image) {
    return image ? handle(record(image)->BeginADMDrawer()) : nullptr;
}

void ADMImageSuite2::EndADMDrawer(_Opaque_ADMImage*) {}

ADMDrawerSuite5 g_ADMDrawerSuite;
ADMImageSuite2 g_ADMImageSuite;
ADMDrawerSuite5* sADMDrawer = &g_ADMDrawerSuite;
ADMImageSuite2* sADMImage = &g_ADMImageSuite;
