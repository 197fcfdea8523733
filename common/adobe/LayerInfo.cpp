#include "common/adobe/LayerInfo.h"

#include "common/adobe/angles.h"

#include <limits>

int truncated(double value) {
    using Limits = std::numeric_limits<int>;
    if (value >= Limits::max()) return Limits::max();
    if (value <= Limits::min()) return Limits::min();
    return value == value ? static_cast<int>(value) : 0;
}

void LayerInfo::refresh_mat() {
    using Matrix = math::TMatrix3D<double>;
    using Vector = math::TGeomVector3D<double>;
    const AEGP_ThreeDVal& angles = orient.val.three_d;
    const AEGP_ThreeDVal& place = pos.val.three_d;

    const Matrix rz = Matrix::BuildRotate(Vector::Ez(), radians_per_degree * angles.z);
    const Matrix ry = Matrix::BuildRotate(Vector::Ey(), radians_per_degree * angles.y);
    const Matrix rx = Matrix::BuildRotate(Vector::Ex(), radians_per_degree * angles.x);
    const Matrix shift = Matrix::BuildShift(Vector(place.x, place.y, place.z));
    mat = shift * rx * ry * rz;
}
