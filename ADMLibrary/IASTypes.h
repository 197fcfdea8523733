// The points and rectangles of wrappers and builder: the toolkit's own, with constructors.

#pragma once

#include "ADMLibrary/ADMTypes.h"

struct IASPoint : Point {
    IASPoint() : Point{0, 0} {}
    IASPoint(std::int16_t vertical, std::int16_t horizontal) : Point{vertical, horizontal} {}
    IASPoint(const Point& other) : Point(other) {}
};

struct IASRect : Rect {
    IASRect() : Rect{0, 0, 0, 0} {}
    IASRect(std::int16_t top_, std::int16_t left_, std::int16_t bottom_, std::int16_t right_)
        : Rect{top_, left_, bottom_, right_} {}
    IASRect(const Rect& other) : Rect(other) {}
};

static_assert(sizeof(IASPoint) == sizeof(Point) && sizeof(IASRect) == sizeof(Rect));
