// A picture that a plain function paints, through an offscreen image.

#pragma once

#include "ADMLibrary/BaseADMImageItem.h"

class CustomIcon : public BaseADMImageItem {
  public:
    // Takes over `item`; `drawProc` may be null, which paints nothing.
    CustomIcon(IADMItem item, ADMItemDrawProc drawProc);

    void Draw(IADMDrawer drawer) override;
    ~CustomIcon() override;

  private:
    ADMItemDrawProc _draw_proc;
};
