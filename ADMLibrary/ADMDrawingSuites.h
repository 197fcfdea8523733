// The drawing suites: drawers, and offscreen images to draw into.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct ADMDrawerSuite5 {
    // Sets the colour for fills and strokes. 0 to 6, 13, 14 and 16 are colours of the host's
    // interface. So are 7, 15 and 26 once a panel has been made; until then they are dark grey,
    // black and dark grey. Any other value changes nothing.
    static void SetADMColor(_Opaque_ADMDrawer*, ADMColor color);
    // The rectangle of the item, or of the image, in its own coordinates; untouched without either.
    static void GetBoundsRect(_Opaque_ADMDrawer*, Rect* bounds);
    static void FillRect(_Opaque_ADMDrawer*, const Rect* r);
    static void FillPolygon(_Opaque_ADMDrawer*, const Point* points, int count);
    static void DrawRect(_Opaque_ADMDrawer*, const Rect* r); // the outline
    static void DrawLine(_Opaque_ADMDrawer*, const Point* from, const Point* to);
    // Draws the present content of the image, its top left at `at`.
    static void DrawADMImage(_Opaque_ADMDrawer*, _Opaque_ADMImage* image, const Point* at);
    static void ClearRect(_Opaque_ADMDrawer*, const Rect* r); // to transparent
};

struct ADMImageSuite2 {
    // A transparent image, sizes in pixels, for the caller to destroy; null if a size is not
    // positive or memory runs out. `options` is not used.
    static _Opaque_ADMImage* CreateOffscreen(int width, int height, int options);
    static void Destroy(_Opaque_ADMImage*);
    static int GetWidth(_Opaque_ADMImage*);
    static int GetHeight(_Opaque_ADMImage*);
    // The image's only drawer, valid as long as the image.
    static _Opaque_ADMDrawer* BeginADMDrawer(_Opaque_ADMImage*);
    static void EndADMDrawer(_Opaque_ADMImage*);
};

extern ADMDrawerSuite5 g_ADMDrawerSuite;
extern ADMImageSuite2 g_ADMImageSuite;
extern ADMDrawerSuite5* sADMDrawer;
extern ADMImageSuite2* sADMImage;
