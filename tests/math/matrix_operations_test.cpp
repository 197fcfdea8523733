#include "tests/math/support.h"

#include <limits>

using namespace math_test;

namespace {

constexpr double nan = std::numeric_limits<double>::quiet_NaN();

M3 random_rotation(Inputs& inputs) {
    const V3 axis = inputs.unit();
    return M3::BuildRotate(axis, inputs.number(-pi, pi));
}

TEST(MatrixInverse, TimesTheMatrixIsTheIdentity) {
    Inputs inputs(1);
    for (int n = 0; n < 3000; ++n) {
        M3 m = inputs.matrix(std::exp(inputs.number(-9, 9)));
        // Zeros make the order of the pivots matter.
        for (int i = 0; n % 2 && i < 6; ++i) m(inputs.whole(0, 3), inputs.whole(0, 3)) = 0;
        for (int i = 0; n % 3 == 0 && i < 4; ++i) m(i, (i + n) % 4) = 50 * inputs.number(1, 2);
        try {
            const M3 inverse = m.Inversed();
            double size = 0, inverse_size = 0;
            for (int i = 0; i < 16; ++i) {
                size = std::fmax(size, std::fabs(m(i / 4, i % 4)));
                inverse_size = std::fmax(inverse_size, std::fabs(inverse(i / 4, i % 4)));
            }
            expect_near(m * inverse, M3::HI(), 1e-15 * size * inverse_size);
            EXPECT_EQ(inverse.flags(), 0);
        } catch (const SingularMatrix3DException&) {
            EXPECT_EQ(n % 2, 1) << "a full random matrix is never singular";
        }
    }
    EXPECT_EQ(M3().Inversed().flags(), 3);
}

TEST(MatrixInverse, OfARigidOneStaysRigid) {
    const M3 m = M3::BuildShift({4, 5, 6}) * M3::BuildRotate(V3::Ey(), pi / 2);
    const M3 inverse = m.Inversed();
    EXPECT_EQ(inverse.flags(), 1);
    expect_near(m * inverse, M3::HI(), 1e-15);
    expect_near(inverse * V3(), {6, -5, -4}, 1e-14);
}

TEST(MatrixInverse, SingularOnesThrow) {
    const M3 table[] = {
        {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0},
        {1, 2, 3, 4, 2, 4, 6, 8, 0, 1, 0, 0, 0, 0, 0, 1},
        {1, 0, 2, 5, 3, 0, 2, 6, 5, 0, 2, 1, 7, 0, 4, 3},
        {nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan, nan}};
    for (M3 m : table) EXPECT_THROW(m.Inverse(), math::SingularMatrix3DException);
}

TEST(MatrixBuild, RotationsAndFrames) {
    Inputs inputs(2);
    for (int n = 0; n < 500; ++n) {
        const V3 axis = inputs.vector(3), p = inputs.vector(9), v = inputs.vector(9);
        const double angle = inputs.number(-9, 9);
        const M3 left = M3::BuildLRotate(axis, angle);
        expect_near(left, M3::BuildRotate(axis, -angle), 1e-14);
        EXPECT_EQ(left.flags(), 1);
        const M3 about = M3::BuildRotate(p, axis, angle);
        EXPECT_EQ(about.flags(), 0);
        expect_near(about * (p + axis * 2), p + axis * 2, 1e-13);
        expect_near(about * v, M3::BuildShift(p) * (M3::BuildRotate(axis, angle) * (v - p)), 1e-13);
        expect_near(M3::BuildEuler(p),
                    M3::BuildRotate(V3::Ez(), p.x) * M3::BuildRotate(V3::Ey(), -p.y) *
                        M3::BuildRotate(V3::Ex(), p.z),
                    1e-14);
        const M3 frame = M3::BuildHMatrix(axis, v, p);
        expect_near(frame * V3(2, 3, 5), axis * 2 + cross(v, axis) * 3 + v * 5 + p, 1e-12);
        expect_near(M3::BuildRotateScale(axis, v) * axis, v, 1e-13);
        expect_near(M3::BuildRotateScale(axis, axis * -2) * axis, axis * -2, 1e-13);
        const M3 turned = M3::BuildRotateScale(axis, axis * -2);
        EXPECT_NEAR(dot(turned.X(), cross(turned.Y(), turned.Z())), 8, 1e-12) << "no mirror";
    }
    expect_near(M3::BuildRotateScale(V3::Ex(), V3::Ex()), M3::HI(), 0);
}

TEST(MatrixBuild, ScaleAndPerspective) {
    EXPECT_EQ(M3::BuildScale(1, 1, 1).flags(), 3);
    EXPECT_EQ(M3::BuildScale(1, 2, 1).flags(), 0);
    EXPECT_EQ(M3::BuildScale(2, 3, -4) * V3(1, 1, 1), V3(2, 3, -4));
    const M3 view = M3::BuildPerspective(0, 0, -4);
    EXPECT_EQ(view.flags(), 0);
    EXPECT_EQ(M3::BuildPerspective(0, 0, 0).flags(), 0);
    EXPECT_EQ(view * V3(3, 6, 8), V3(1, 2, 8.0 / 3));
    EXPECT_THROW(view * V3(1, 1, -4), VectorInFocusException);
}

TEST(MatrixRelate, AnglesAndAxesRebuildTheRotation) {
    Inputs inputs(3);
    for (int n = 0; n < 2000; ++n) {
        const M3 a =
            M3::BuildShift(inputs.vector(9)) * random_rotation(inputs) * M3::BuildScale(2, 3, 0.5);
        const M3 b = random_rotation(inputs);
        const V3 e = M3::BuildEuler(a, b);
        const double bound = std::fabs(e.y) == pi / 2 ? 2e-3 : 1e-9;
        expect_near(a.Rotate() * M3::BuildEuler(e), b, bound);
        V3 axis;
        double angle = -1;
        M3::BuildRotate(a, b, axis, angle);
        expect_near(M3::BuildRotate(axis, angle) * a.Rotate(), b, 1e-6);
        EXPECT_TRUE(0 <= angle && angle <= pi);
        const V3 own = M3::getRotationAxis(b, angle);
        expect_near(M3::BuildRotate(own, angle), b, 1e-7);
    }
    for (const double half_turn : {pi, -pi, pi - 1e-13}) {
        const M3 half = M3::BuildRotate(V3(1, -2, 3), half_turn);
        double angle;
        V3 axis = M3::getRotationAxis(half, angle);
        expect_near(M3::BuildRotate(axis, angle), half, 1e-7);
        M3::BuildRotate(M3(), half, axis, angle);
        expect_near(M3::BuildRotate(axis, angle), half, 1e-7);
    }
    double angle = 9;
    V3 axis;
    EXPECT_EQ(M3::getRotationAxis(M3::BuildShift({1, 2, 3}), angle), V3::Ez());
    EXPECT_EQ(angle, 0);
    M3::BuildRotate(M3::BuildShift({1, 2, 3}), M3(), axis, angle);
    EXPECT_EQ(axis, V3::Ez());
    EXPECT_EQ(angle, 0);
}

TEST(MatrixRelate, AtAPoleTheNearestAnglesAreTaken) {
    Inputs inputs(4);
    for (int n = 0; n < 1000; ++n) {
        const V3 wanted(inputs.number(-9, 9), n % 2 ? pi / 2 : -pi / 2, inputs.number(-9, 9));
        const M3 b = M3::BuildEuler(wanted);
        expect_near(M3::BuildEuler(M3(), b, wanted), wanted, 1e-12);
        const V3 nearest = M3::BuildEuler(M3(), b);
        expect_near(M3::BuildEuler(nearest), b, 1e-12);
        EXPECT_LE(std::fabs(nearest.x) + std::fabs(nearest.z), pi + 1e-12);
    }
}

TEST(MatrixParts, ColumnsScaleAndTranspose) {
    Inputs inputs(5);
    for (int n = 0; n < 500; ++n) {
        const M3 m = n % 2 ? inputs.matrix(2)
                           : M3::BuildRotate(V3::Ey(), n) * M3::BuildShift(inputs.vector(3));
        const V3 units[] = {V3::Ex(), V3::Ey(), V3::Ez()}, images[] = {m.X(), m.Y(), m.Z()};
        for (int i = 0; i < 3; ++i) {
            const V3 difference = m * units[i] - m * V3();
            expect_near(images[i], difference, 1e-12 * (1 + length(m * V3())));
            expect_near(m & units[i], difference, 1e-12 * (1 + length(m * V3())));
        }
        M3 block = m.Rotate() * M3::BuildScale(m.Scale().x, m.Scale().y, m.Scale().z);
        expect_near(block * V3(1, 2, 3) + V3(m(0, 3), m(1, 3), m(2, 3)),
                    M3(m(0, 0), m(0, 1), m(0, 2), m(0, 3), m(1, 0), m(1, 1), m(1, 2), m(1, 3),
                       m(2, 0), m(2, 1), m(2, 2), m(2, 3), 0, 0, 0, 1) *
                        V3(1, 2, 3),
                    1e-13);
        EXPECT_EQ(m.Transposed()(0, 3), m(3, 0));
        EXPECT_TRUE(m.Transposed().Transposed() == m);
    }
    EXPECT_EQ(M3::BuildScale(0, 5, 0).Rotate().X(), V3::Ex());
    EXPECT_EQ(M3().Rotate().flags(), 3);
    EXPECT_EQ(M3::BuildScale(1, 2, 1).Rotate().flags(), 1);
    M3 focus;
    focus(3, 0) = -1;
    focus.setFlags();
    EXPECT_THROW(focus.X(), VectorInFocusException);
    EXPECT_THROW(focus & V3::Ex(), VectorInFocusException);
}

TEST(MatrixCompare, UpToTheAccuracy) {
    M3 a, b;
    b(2, 1) = 1 + std::numeric_limits<double>::epsilon();
    a(2, 1) = 1;
    EXPECT_TRUE(a != b);
    EXPECT_EQ(M3::Accuracy(0), 0);
    EXPECT_EQ(M3::Accuracy(1e-9), 1e-9);
    EXPECT_TRUE(a == b);
    b(2, 1) = 1 + 2e-9;
    EXPECT_EQ(M3::Accuracy(0), 1e-9);
    EXPECT_TRUE(a != b);
    M3::Accuracy(std::numeric_limits<double>::denorm_min()); // as exact as at first
}

TEST(PlaneMatrix, ActsOnRowVectors) {
    const auto image = [](const V2& p, const math::TMatrix2D<double>& m) {
        return V2(p.x * m(0, 0) + p.y * m(1, 0) + m(2, 0), p.x * m(0, 1) + p.y * m(1, 1) + m(2, 1));
    };
    using M2 = math::TMatrix2D<double>;
    EXPECT_EQ(image({1, 2}, M2::BuildShift({10, 20})), V2(11, 22));
    EXPECT_EQ(image({1, 2}, M2::BuildScale({10, 20})), V2(10, 40));
    const V2 turned = image({5, 3}, M2::BuildRotate({4, 3}, pi / 2));
    EXPECT_NEAR(turned.x, 4, 1e-15);
    EXPECT_NEAR(turned.y, 4, 1e-15);
}

} // namespace
