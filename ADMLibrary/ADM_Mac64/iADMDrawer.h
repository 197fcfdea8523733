// A surface to draw on: a Core Graphics context in the toolkit's coordinates.

#pragma once

#include "ADMLibrary/ADM_Mac64/Handles.h"

#include <Cocoa/Cocoa.h>

// The operations are those of ADMDrawerSuite5.
class iADMDrawer {
  public:
    // Draws `drawn_item` into a context that the caller owns.
    explicit iADMDrawer(CGContextRef target, iADMItem* drawn_item = nullptr)
        : context(target), item(drawn_item) {}
    virtual ~iADMDrawer() = default;

    void SetADMColor(ADMColor color);
    void GetBoundsRect(Rect* bounds) const;
    void FillRect(const Rect* r);
    void FillPolygon(const Point* points, int count);
    void DrawRect(const Rect* r);
    void DrawLine(const Point* from, const Point* to);
    void DrawADMImage(iADMImage* source, const Point* at);
    void ClearRect(const Rect* r);

    // Whether all symbolic colours are the host's: true once a panel has been made.
    static bool _useAppColor;

    CGContextRef context;
    std::int32_t result = 0;
    iADMItem* item;
    iADMImage* image = nullptr;
};
