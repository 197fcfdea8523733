#include "common/adobe/LayerInfo.h"

#include "common/adobe/angles.h"

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
