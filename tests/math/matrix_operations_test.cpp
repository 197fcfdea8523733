#include "tests/math/support.h"

using namespace math_test;

namespace {

double size(const M3& m) {
    double largest = 0;
    for (int i = 0; i < 16; ++i) largest = std::fmax(largest, std::fabs(m(i / 4, i % 4)));
    return largest;
}

TEST(MatrixInverse, TimesTheMatrixIsTheIdentity) {
    Inputs inputs(1);
    for (int n = 0; n < 3000; ++n) {
        M3 m = inputs.matrix(std::exp(inputs.number(-9, 9)));
        // Zeros and dominant elements make the order of the pivots matter.
        for (int i = 0; n % 2 && i < 6; ++i) m(inputs.whole(0, 3), inputs.whole(0, 3)) = 0;
        for (int i = 0; n % 3 == 0 && i < 4; ++i) m(i, (i + n) % 4) = 50 * inputs.number(1, 2);
        try {
            const M3 inverse = m.Inversed();
            expect_near(m * inverse, M3::HI(), 1e-15 * size(m) * size(inverse));
        } catch (const SingularMatrix3DException&) {
            EXPECT_EQ(n % 2, 1) << "a full random matrix is never singular";
        }
    }
    const M3 m = M3::BuildShift({4, 5, 6}) * M3::BuildRotate(V3::Ey(), pi / 2);
    expect_near(m * m.Inversed(), M3::HI(), 1e-15);
    EXPECT_EQ(m.Inversed().flags(), 1);
    EXPECT_EQ(M3().Inversed().flags(), 3);
}

TEST(MatrixInverse, SingularOnesThrow) {
    const M3 table[] = {{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
                        {1, 2, 3, 4, 2, 4, 6, 8, 0, 1, 0, 0, 0, 0, 0, 1},
                        M3(NAN, 0, 0, 0, 0, NAN, 0, 0, 0, 0, NAN, 0, 0, 0, 0, NAN)};
    for (M3 m : table) EXPECT_THROW(m.Inverse(), SingularMatrix3DException);
    EXPECT_NO_THROW(M3::BuildScale(1, 2, 5e-324).Inversed()); // no pivot is exactly 0
}

TEST(MatrixBuild, RotationsAndFrames) {
    Inputs inputs(2);
    for (int n = 0; n < 500; ++n) {
        const V3 axis = inputs.vector(3), p = inputs.vector(9), v = inputs.vector(9);
        const double angle = inputs.number(-9, 9);
        const M3 turn = M3::BuildRotate(axis, angle), left = M3::BuildLRotate(axis, angle);
        expect_near(left, M3::BuildRotate(axis, -angle), 1e-14);
        EXPECT_EQ(left.flags(), 1);
        expect_near(M3::BuildRotate(p, axis, angle) * v, p + turn * (v - p), 1e-13);
        EXPECT_EQ(M3::BuildRotate(p, axis, angle).flags(), 0);
        expect_near(M3::BuildEuler(p),
                    M3::BuildRotate(V3::Ez(), p.x) * M3::BuildRotate(V3::Ey(), -p.y) *
                        M3::BuildRotate(V3::Ex(), p.z),
                    1e-14);
        expect_near(M3::BuildHMatrix(axis, v, p) * V3(2, 3, 5),
                    axis * 2 + cross(v, axis) * 3 + v * 5 + p, 1e-12);
        for (const V3& to : {v, axis * -2, axis}) {
            const M3 m = M3::BuildRotateScale(axis, to);
            expect_near(m * axis, to, 1e-13);
            EXPECT_GT(dot(m.X(), cross(m.Y(), m.Z())), 0) << "a mirror";
        }
    }
    EXPECT_EQ(M3::BuildScale(2, 3, -4) * V3(1, 1, 1), V3(2, 3, -4));
    EXPECT_EQ(M3::BuildPerspective(0, 0, -4) * V3(3, 6, 8), V3(1, 2, 8.0 / 3));
}

TEST(MatrixRelate, AnglesAndAxesRebuildTheRotation) {
    Inputs inputs(3);
    for (int n = 0; n < 2000; ++n) {
        const M3 a = M3::BuildShift(inputs.vector(9)) * inputs.rotation() * M3::BuildScale(2, 3, 5);
        const M3 b = n % 4   ? inputs.rotation()
                     : n % 8 ? M3::BuildRotate(inputs.unit(), pi)
                             : M3::BuildRotate(inputs.unit(), 1e-5);
        const V3 e = M3::BuildEuler(a, b);
        expect_near(a.Rotate() * M3::BuildEuler(e), b, std::fabs(e.y) == pi / 2 ? 2e-3 : 1e-9);
        V3 axis;
        double angle = -1;
        M3::BuildRotate(a, b, axis, angle);
        expect_near(M3::BuildRotate(axis, angle) * a.Rotate(), b, 1e-6);
        EXPECT_TRUE(0 <= angle && angle <= pi);
        axis = M3::getRotationAxis(b, angle);
        expect_near(M3::BuildRotate(axis, angle), b, 1e-7);
        // At a pole the result is the angles nearest to the reference.
        const V3 wanted(inputs.number(-9, 9), n % 2 ? pi / 2 : -pi / 2, inputs.number(-9, 9));
        expect_near(M3::BuildEuler(M3(), M3::BuildEuler(wanted), wanted), wanted, 1e-12);
        const V3 nearest = M3::BuildEuler(M3(), M3::BuildEuler(wanted));
        expect_near(M3::BuildEuler(nearest), M3::BuildEuler(wanted), 1e-12);
        EXPECT_LE(std::fabs(nearest.x) + std::fabs(nearest.z), pi + 1e-12);
    }
    double angle = 9;
    EXPECT_EQ(M3::getRotationAxis(M3::BuildShift({1, 2, 3}), angle), V3::Ez());
    EXPECT_EQ(angle, 0);
}

TEST(MatrixParts, ColumnsScaleAndTranspose) {
    Inputs inputs(5);
    for (int n = 0; n < 500; ++n) {
        const M3 m = n % 2 ? inputs.matrix(2)
                           : M3::BuildShift(inputs.vector(3)) * M3::BuildRotate(V3::Ey(), n);
        const V3 units[] = {V3::Ex(), V3::Ey(), V3::Ez()}, images[] = {m.X(), m.Y(), m.Z()};
        const M3 block = m.Rotate() * M3::BuildScale(m.Scale().x, m.Scale().y, m.Scale().z);
        for (int i = 0; i < 3; ++i) {
            const double tolerance = 1e-12 * (1 + length(m * V3()) + length(m * units[i]));
            expect_near(images[i], m * units[i] - m * V3(), tolerance);
            expect_near(m & units[i], m * units[i] - m * V3(), tolerance);
            expect_near(block * units[i], {m(0, i), m(1, i), m(2, i)}, 1e-14);
        }
        EXPECT_EQ(m.Transposed()(0, 3), m(3, 0));
        EXPECT_TRUE(m.Transposed().Transposed() == m);
    }
    EXPECT_EQ(M3::BuildScale(0, 5, 0).Rotate().X(), V3::Ex());
}

TEST(MatrixCompare, UpToTheAccuracy) {
    M3 near_one;
    near_one(2, 2) = std::nextafter(1.0, 2);
    EXPECT_TRUE(near_one != M3());
    EXPECT_EQ(M3::Accuracy(1e-9), 1e-9);
    EXPECT_EQ(M3::Accuracy(0), 1e-9);
    EXPECT_TRUE(near_one == M3());
    EXPECT_TRUE(M3::BuildScale(1 + 2e-9, 1, 1) != M3());
    M3::Accuracy(5e-324); // exact again
}

TEST(PlaneMatrix, ActsOnRowVectors) {
    const auto m = math::TMatrix2D<double>::BuildRotate({4, 3}, pi / 2);
    EXPECT_NEAR(5 * m(0, 0) + 3 * m(1, 0) + m(2, 0), 4, 1e-15);
    EXPECT_NEAR(5 * m(0, 1) + 3 * m(1, 1) + m(2, 1), 4, 1e-15);
}

} // namespace
