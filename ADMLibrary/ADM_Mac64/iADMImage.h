// An offscreen image, which is its own drawer.

#pragma once

#include "ADMLibrary/ADM_Mac64/iADMDrawer.h"

// The operations are those of ADMImageSuite2.
class iADMImage : public iADMDrawer {
  public:
    // Null if a size is not positive or if memory, colour space or context cannot be made.
    static iADMImage* CreateOffscreen(int width, int height);
    iADMImage(const iADMImage&) = delete;
    iADMImage& operator=(const iADMImage&) = delete;
    ~iADMImage() override;

    int GetWidth() const;
    int GetHeight() const;
    iADMDrawer* BeginADMDrawer();

  private:
    iADMImage() : iADMDrawer(nullptr) {}

    void* _pixels = nullptr; // RGBA, premultiplied, rows without padding
    CGColorSpaceRef _color_space = nullptr;
};
