#include "ADMLibrary/BaseADMImageItem.h"

BaseADMImageItem::BaseADMImageItem(IADMItem item, void* userData) : BaseADMItem(item, userData) {}

BaseADMImageItem::~BaseADMImageItem() {
    if (_image && sADMImage) discard_image();
}

void BaseADMImageItem::discard_image() {
    ADMImageSuite2::Destroy(_image);
    _image = nullptr;
}

bool BaseADMImageItem::UseImage() const {
    return true;
}

void BaseADMImageItem::BaseDraw(IADMDrawer drawer) {
    if (!UseImage()) return Draw(drawer);

    Rect bounds = {0, 0, 0, 0};
    ADMDrawerSuite5::GetBoundsRect(drawer, &bounds);
    const int width = bounds.right - bounds.left;
    const int height = bounds.bottom - bounds.top;
    if (_image &&
        (ADMImageSuite2::GetWidth(_image) != width || ADMImageSuite2::GetHeight(_image) != height))
        discard_image();
    if (!_image) _image = ADMImageSuite2::CreateOffscreen(width, height, 0);
    if (!_image) return Draw(drawer);

    const Point origin = {0, 0};
    _Opaque_ADMDrawer* image_drawer = ADMImageSuite2::BeginADMDrawer(_image);
    if (!image_drawer) {
        ADMDrawerSuite5::DrawADMImage(drawer, _image, &origin);
        return Draw(drawer);
    }
    ADMDrawerSuite5::ClearRect(image_drawer, &bounds);
    Draw(image_drawer);
    ADMImageSuite2::EndADMDrawer(_image);
    ADMDrawerSuite5::DrawADMImage(drawer, _image, &origin);
}
