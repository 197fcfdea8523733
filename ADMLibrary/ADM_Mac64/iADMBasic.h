// The screen, as the basic suite reports it.

#pragma once

#include "ADMLibrary/ADMTypes.h"

class iADMBasic {
  public:
    // See ADMBasicSuite8.
    static bool GetScreenDimensions(const Point* where, Rect* out);
};
