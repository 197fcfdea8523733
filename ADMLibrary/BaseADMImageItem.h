// An item that is double-buffered: Draw paints into an offscreen image of the item's size, which is
// kept for the next time.

#pragma once

#include "ADMLibrary/BaseADMItem.h"

class BaseADMImageItem : public BaseADMItem {
  public:
    BaseADMImageItem() = default;
    BaseADMImageItem(IADMItem item, void* userData);

    void BaseDraw(IADMDrawer drawer) override;
    ~BaseADMImageItem() override;
    // Whether to draw through an image; if not, Draw gets the item's own drawer.
    virtual bool UseImage() const;

  private:
    void discard_image();

    _Opaque_ADMImage* _image = nullptr;
};
