// Vectors of the plane and of space, and the clamped arc cosine behind their angles.
// Angles are radians. `^` is the angle between two vectors; cross products are `cross(a, b)`.

#pragma once

#include <cmath>

namespace math {

// Arc cosine in [0, pi], clamped: pi at or below -1, 0 at or above 1. A NaN stays a NaN.
inline double acos(double x) {
    if (x <= -1.0) return 3.141592653589793;
    if (x >= 1.0) return 0.0;
    return std::acos(x);
}

// A length up to this counts as 0.
inline constexpr double smallest_length = 1e-12;
// The smallest normal number of single precision: products of lengths within it count as zero.
inline constexpr double smallest_float = 1.1754943508222875e-38;

// A vector or point in space: a plain value. The default is the zero vector.
template <typename T>
struct TGeomVector3D {
    T x = 0, y = 0, z = 0;

    constexpr TGeomVector3D() = default;
    constexpr TGeomVector3D(T vx, T vy, T vz) : x(vx), y(vy), z(vz) {}

    // The shared unit vectors of the three axes.
    static const TGeomVector3D& Ex() {
        static constexpr TGeomVector3D e{1, 0, 0};
        return e;
    }
    static const TGeomVector3D& Ey() {
        static constexpr TGeomVector3D e{0, 1, 0};
        return e;
    }
    static const TGeomVector3D& Ez() {
        static constexpr TGeomVector3D e{0, 0, 1};
        return e;
    }

    // Scales to length 1; a vector no longer than 1e-12 (or with a NaN) becomes (0, 0, 0).
    TGeomVector3D& Normalize() {
        const T length = std::sqrt(x * x + y * y + z * z);
        if (length > smallest_length) return *this *= 1 / length;
        return *this = {};
    }
    TGeomVector3D Normalized() const { return TGeomVector3D(*this).Normalize(); }

    // The angle to b, in [0, pi]; 0 when the product of the lengths is practically zero.
    T operator^(const TGeomVector3D& b) const {
        const T lengths = std::sqrt(dot(*this, *this) * dot(b, b));
        if (-smallest_float <= lengths && lengths <= smallest_float) return 0;
        return math::acos(dot(*this, b) / lengths);
    }

    constexpr TGeomVector3D& operator+=(const TGeomVector3D& b) {
        x += b.x;
        y += b.y;
        z += b.z;
        return *this;
    }
    constexpr TGeomVector3D& operator-=(const TGeomVector3D& b) {
        x -= b.x;
        y -= b.y;
        z -= b.z;
        return *this;
    }
    constexpr TGeomVector3D& operator*=(T k) {
        x *= k;
        y *= k;
        z *= k;
        return *this;
    }
    // Each component divided by d, unguarded: dividing by zero gives infinities and NaNs.
    constexpr TGeomVector3D& operator/=(T d) {
        x /= d;
        y /= d;
        z /= d;
        return *this;
    }

    friend constexpr TGeomVector3D operator+(TGeomVector3D a, const TGeomVector3D& b) {
        return a += b;
    }
    friend constexpr TGeomVector3D operator-(TGeomVector3D a, const TGeomVector3D& b) {
        return a -= b;
    }
    friend constexpr TGeomVector3D operator*(TGeomVector3D a, T k) { return a *= k; }
    friend constexpr TGeomVector3D operator*(T k, TGeomVector3D a) { return a *= k; }
    friend constexpr TGeomVector3D operator/(TGeomVector3D a, T d) { return a /= d; }
    friend constexpr TGeomVector3D operator-(const TGeomVector3D& a) { return {-a.x, -a.y, -a.z}; }
    friend constexpr bool operator==(const TGeomVector3D&, const TGeomVector3D&) = default;
};

template <typename T>
constexpr T dot(const TGeomVector3D<T>& a, const TGeomVector3D<T>& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
// Right-handed: cross(Ex, Ey) = Ez.
template <typename T>
constexpr TGeomVector3D<T> cross(const TGeomVector3D<T>& a, const TGeomVector3D<T>& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}
template <typename T>
T length(const TGeomVector3D<T>& a) {
    return std::sqrt(dot(a, a));
}
// The length, or 0 up to 1e-12.
template <typename T>
T counted_length(const TGeomVector3D<T>& a) {
    const T l = length(a);
    return l <= smallest_length ? 0 : l;
}

// A vector or point of the plane: a plain value. The default is the zero vector.
template <typename T>
struct TGeomVector2D {
    T x = 0, y = 0;

    constexpr TGeomVector2D() = default;
    constexpr TGeomVector2D(T vx, T vy) : x(vx), y(vy) {}

    friend constexpr TGeomVector2D operator+(const TGeomVector2D& a, const TGeomVector2D& b) {
        return {a.x + b.x, a.y + b.y};
    }
    friend constexpr TGeomVector2D operator-(const TGeomVector2D& a, const TGeomVector2D& b) {
        return {a.x - b.x, a.y - b.y};
    }
    friend constexpr TGeomVector2D operator*(const TGeomVector2D& a, T k) {
        return {a.x * k, a.y * k};
    }
    friend constexpr TGeomVector2D operator-(const TGeomVector2D& a) { return {-a.x, -a.y}; }
    friend constexpr bool operator==(const TGeomVector2D&, const TGeomVector2D&) = default;
};

} // namespace math
