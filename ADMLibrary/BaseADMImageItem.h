// An item that is drawn through an offscreen image of its own size: what Draw paints appears at
// once, and the image is kept for the next time.

#pragma once

#include "ADMLibrary/BaseADMItem.h"

class BaseADMImageItem : public BaseADMItem {
  public:
    BaseADMImageItem() = default;
    BaseADMImageItem(IADMItem item, void* userData);

    void BaseDraw(IADMDrawer drawer) override;
    ~BaseADMImageItem() override;
    // Whether to draw through an image; without, Draw gets the item's own drawer.
    virtual bool UseImage();

  private:
    void forget_image();

    _Opaque_ADMImage* _image = nullptr;
};
