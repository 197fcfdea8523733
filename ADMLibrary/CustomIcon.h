// A picture that a plain function paints, through an offscreen image.

#pragma once

#include "ADMLibrary/BaseADMImageItem.h"

class CustomIcon : public BaseADMImageItem {
  public:
    // Binds itself to `item`. A null `drawProc` paints nothing.
    CustomIcon(IADMItem item, ADMItemDrawProc drawProc);

    void Draw(IADMDrawer drawer) override;

  private:
    ADMItemDrawProc _draw_proc;
};
