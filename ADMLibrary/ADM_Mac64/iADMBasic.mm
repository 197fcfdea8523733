#include "ADMLibrary/ADM_Mac64/iADMBasic.h"

#include "ADMLibrary/ADM_Mac64/Geometry.h"
#include "ADMLibrary/ADMSuites.h"

bool iADMBasic::GetScreenDimensions(const Point* where, Rect* out) {
    NSScreen* screen = [NSScreen mainScreen];
    if (!screen) return false;
    const NSRect visible = [screen visibleFrame];
    if (!NSPointInRect(NSMakePoint(where->h, where->v), visible)) return false;
    *out = adm::rect_of(visible);
    return true;
}

bool ADMBasicSuite8::GetScreenDimensions(const Point* where, Rect* out) {
    return iADMBasic::GetScreenDimensions(where, out);
}

ADMBasicSuite8 g_ADMBasicSuite;
ADMBasicSuite8* sADMBasic = &g_ADMBasicSuite;
