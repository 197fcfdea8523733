#include "ADMLibrary/ADM_Mac64/iADMImage.h"

#include "ADMLibrary/ADM_Mac64/AppKitValues.h"

#include <cstdlib>

namespace {

constexpr int kBytesPerPixel = 4;

// As a 32-bit signed number; 0 if it does not fit or a size is not positive.
int byte_count(int width, int height) {
    int pixels = 0;
    int bytes = 0;
    if (width <= 0 || height <= 0 || __builtin_mul_overflow(width, height, &pixels) ||
        __builtin_mul_overflow(pixels, kBytesPerPixel, &bytes))
        return 0;
    return bytes;
}

} // namespace

iADMImage* iADMImage::CreateOffscreen(int width, int height) {
    const int bytes = byte_count(width, height);
    if (bytes == 0) return nullptr;
    iADMImage* made = new iADMImage;
    made->_pixels = std::calloc(bytes, 1);
    if (made->_pixels) made->_color_space = CGColorSpaceCreateDeviceRGB();
    if (made->_color_space)
        made->context =
            CGBitmapContextCreate(made->_pixels, width, height, 8, width * kBytesPerPixel,
                                  made->_color_space, adm::kPremultipliedAlphaLast);
    if (made->context) return made;
    delete made;
    return nullptr;
}

iADMImage::~iADMImage() {
    if (context) CGContextRelease(context);
    std::free(_pixels);
    if (_color_space) CGColorSpaceRelease(_color_space);
}

int iADMImage::GetWidth() const {
    return static_cast<int>(CGBitmapContextGetWidth(context));
}

int iADMImage::GetHeight() const {
    return static_cast<int>(CGBitmapContextGetHeight(context));
}

iADMDrawer* iADMImage::BeginADMDrawer() {
    image = this;
    return this;
}
