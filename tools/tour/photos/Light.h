#pragma once

#include <algorithm>
#include <cmath>

/// A direction or a place in a photo's world: x to the right, y up, z away from the camera.
struct Vec3 {
    double x = 0;
    double y = 0;
    double z = 0;
};

inline Vec3 operator+(const Vec3& a, const Vec3& b)
{
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}

inline Vec3 operator*(const Vec3& a, double factor)
{
    return {a.x * factor, a.y * factor, a.z * factor};
}

inline double dot(const Vec3& a, const Vec3& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

inline Vec3 normalized(const Vec3& a)
{
    return a * (1.0 / std::sqrt(dot(a, a)));
}

/// Light in linear units, 1 being what a white sheet sends back; the sun is far above.
struct Rgb {
    double r = 0;
    double g = 0;
    double b = 0;
};

inline Rgb operator+(const Rgb& a, const Rgb& b)
{
    return {a.r + b.r, a.g + b.g, a.b + b.b};
}

inline Rgb operator*(const Rgb& a, const Rgb& b)
{
    return {a.r * b.r, a.g * b.g, a.b * b.b};
}

inline Rgb operator*(const Rgb& a, double factor)
{
    return {a.r * factor, a.g * factor, a.b * factor};
}

inline double clamp01(double value)
{
    return std::clamp(value, 0.0, 1.0);
}

inline double mix(double a, double b, double share)
{
    return a + (b - a) * share;
}

inline Rgb mix(const Rgb& a, const Rgb& b, double share)
{
    return {mix(a.r, b.r, share), mix(a.g, b.g, share), mix(a.b, b.b, share)};
}

/// 0 up to `from`, 1 from `to` on, a soft step between; `from` may be the larger one.
inline double smoothStep(double from, double to, double value)
{
    const double t = clamp01((value - from) / (to - from));
    return t * t * (3.0 - 2.0 * t);
}
