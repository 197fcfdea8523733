// What the basic suite answers about the screen.

#pragma once

#include "ADMLibrary/ADMTypes.h"

class iADMBasic {
  public:
    // See ADMBasicSuite8.
    static bool GetScreenDimensions(const Point* where, Rect* out);
};
