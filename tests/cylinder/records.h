// Records as the placement functions take them, and short names for what the tests look at.

#pragma once

#include "common/adobe/LayerInfo.h"

#include <cmath>
#include <list>

using Vector = math::TGeomVector3D<double>;

inline Vector vector_of(const AEGP_StreamValue& value) {
    return {value.val.three_d.x, value.val.three_d.y, value.val.three_d.z};
}

inline LayerInfo record_at(Vector pos, int width = 100, int height = 100) {
    LayerInfo record;
    record.width = record.scaled_width = width;
    record.height = record.scaled_height = height;
    record.scale.val.three_d = {100, 100, 100};
    record.pos.val.three_d = {pos.x, pos.y, pos.z};
    return record;
}

inline std::list<LayerInfo> records(int count) {
    return std::list<LayerInfo>(count, record_at({7, 8, 9}));
}

// In degrees, the long way: for values worked out beside the code under test.
inline double sine(double angle) {
    return std::sin(angle * M_PI / 180);
}
inline double cosine(double angle) {
    return std::cos(angle * M_PI / 180);
}

#define EXPECT_VECTOR_NEAR(actual, wanted, tolerance)                                              \
    do {                                                                                           \
        const Vector a_ = (actual), w_ = (wanted);                                                 \
        EXPECT_NEAR(a_.x, w_.x, tolerance);                                                        \
        EXPECT_NEAR(a_.y, w_.y, tolerance);                                                        \
        EXPECT_NEAR(a_.z, w_.z, tolerance);                                                        \
    } while (false)
