// The suites that a picture is drawn with: a drawer, and offscreen images that can be drawn into.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct ADMDrawerSuite5 {
    // The colour that fills and strokes from now on. 0, 1, 2, 3, 4, 5, 6, 13, 14 and 16 are colours
    // of the host's interface; 7, 15 and 26 are so too once a panel was made, and dark grey, black
    // and dark grey before. Any other value changes nothing.
    static void SetADMColor(_Opaque_ADMDrawer*, ADMColor color);
    // The item's rectangle in its own coordinates, or the image's; else `bounds` stays untouched.
    static void GetBoundsRect(_Opaque_ADMDrawer*, Rect* bounds);
    static void FillRect(_Opaque_ADMDrawer*, const Rect* r);
    static void FillPolygon(_Opaque_ADMDrawer*, const Point* points, int count);
    static void DrawRect(_Opaque_ADMDrawer*, const Rect* r); // the outline
    static void DrawLine(_Opaque_ADMDrawer*, const Point* from, const Point* to);
    // The image as it is now, its top left at `at`.
    static void DrawADMImage(_Opaque_ADMDrawer*, _Opaque_ADMImage* image, const Point* at);
    static void ClearRect(_Opaque_ADMDrawer*, const Rect* r); // to transparent
};

struct ADMImageSuite2 {
    // A transparent image of that many pixels, the caller's to destroy; null if a size is not
    // positive or if there is not enough memory. `options` is not used.
    static _Opaque_ADMImage* CreateOffscreen(int width, int height, int options);
    static void Destroy(_Opaque_ADMImage*);
    static int GetWidth(_Opaque_ADMImage*);
    static int GetHeight(_Opaque_ADMImage*);
    // The image's one drawer, good as long as the image.
    static _Opaque_ADMDrawer* BeginADMDrawer(_Opaque_ADMImage*);
    static void EndADMDrawer(_Opaque_ADMImage*);
};

extern ADMDrawerSuite5 g_ADMDrawerSuite;
extern ADMImageSuite2 g_ADMImageSuite;
extern ADMDrawerSuite5* sADMDrawer;
extern ADMImageSuite2* sADMImage;
