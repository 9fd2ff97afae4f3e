#pragma once

#include <cmath>

namespace devcatalog
{

constexpr double pi = 3.14159265358979323846;

/// A point or direction in space, in millimetres. The x axis points right, y away from the front view's
/// viewer, z up.
struct Vector3 {
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
};

constexpr Vector3 operator+(const Vector3& a, const Vector3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vector3 operator-(const Vector3& a, const Vector3& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vector3 operator-(const Vector3& a)
{
    return {-a.x, -a.y, -a.z};
}
constexpr Vector3 operator*(double factor, const Vector3& a)
{
    return {factor * a.x, factor * a.y, factor * a.z};
}

constexpr double dot(const Vector3& a, const Vector3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

constexpr Vector3 cross(const Vector3& a, const Vector3& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

inline double length(const Vector3& a)
{
    return std::sqrt(dot(a, a));
}

inline Vector3 normalized(const Vector3& a)
{
    return (1 / length(a)) * a;
}

constexpr Vector3 xAxis{1, 0, 0};
constexpr Vector3 yAxis{0, 1, 0};
constexpr Vector3 zAxis{0, 0, 1};

} // namespace devcatalog
