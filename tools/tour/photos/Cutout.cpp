#include "photos/Cutout.h"

#include "photos/Canvas.h"
#include "photos/Film.h"
#include "photos/Noise.h"

namespace
{

constexpr int kSteps = 70;
constexpr double kFar = 6.5;
constexpr double kFloor = -0.86;

double length(const Vec3& a)
{
    return std::sqrt(dot(a, a));
}

/// Distance to the skin, never overestimated by much. The apple's middle is the origin, its radius
/// about 1.
double toSkin(const Vec3& p)
{
    const double distance = length(p);
    if (distance > 1.4) {
        return distance - 1.2;
    }
    const double fromTop = std::atan2(std::hypot(p.x, p.z), p.y);
    const double fromBottom = M_PI - fromTop;
    const double around = std::atan2(p.z, p.x);
    double radius = 1.02 - 0.46 * std::exp(-std::pow(fromTop / 0.40, 2) * 1.1) -
                    0.20 * std::exp(-std::pow(fromBottom / 0.36, 2));
    radius -= 0.085 * smoothStep(1.2, 2.9, fromTop); // narrower towards the ground
    radius += 0.022 * std::cos(around * 5 + 0.7) * smoothStep(1.0, 2.6, fromTop);
    radius += 0.012 * std::cos(around * 3 + 2.0);
    return (distance - radius) * 0.72;
}

double toStem(const Vec3& p)
{
    const Vec3 foot{0.0, 0.46, 0.0};
    const Vec3 tip{0.16, 1.14, -0.03};
    const Vec3 axis = tip + foot * -1.0;
    const double share = clamp01(dot(p + foot * -1.0, axis) / dot(axis, axis));
    Vec3 nearest = foot + axis * share;
    nearest.x -= 0.09 * std::sin(share * M_PI); // bent
    const double thick = 0.030 + 0.028 * std::pow(share, 5) + 0.012 * (1 - share);
    return (length(p + nearest * -1.0) - thick) * 0.85;
}

double toSurface(const Vec3& p)
{
    return std::min(toSkin(p), toStem(p));
}

Vec3 normalAt(const Vec3& p)
{
    const double e = 0.0015;
    const double here = toSurface(p);
    return normalized({toSurface({p.x + e, p.y, p.z}) - here, toSurface({p.x, p.y + e, p.z}) - here,
                       toSurface({p.x, p.y, p.z + e}) - here});
}

Rgb skinColour(const Vec3& p)
{
    const double fromTop = std::atan2(std::hypot(p.x, p.z), p.y);
    // The streaks run from stem to flower; going around, the pattern has to meet itself.
    const double level = std::hypot(p.x, p.z) + 1e-9;
    const double aroundX = p.x / level;
    const double aroundZ = p.z / level;
    const double streaks =
        Noise::fractal(aroundX * 9 + fromTop * 0.5, aroundZ * 9 + fromTop * 0.9, 6, 171);
    const double blush = Noise::fractal(p.x * 0.9 + 4, p.z * 0.9 + p.y * 0.6, 4, 173);
    const double ripe = smoothStep(-0.62, 0.30, blush + streaks * 0.60 + p.x * 0.22);
    Rgb skin = mix(Rgb{0.74, 0.50, 0.10}, Rgb{0.50, 0.028, 0.022}, ripe);
    skin = mix(skin, Rgb{0.30, 0.012, 0.018}, 0.6 * smoothStep(0.1, 0.5, streaks) * ripe);
    skin = mix(skin, Rgb{0.50, 0.47, 0.12}, smoothStep(0.62, 0.15, fromTop + streaks * 0.25));
    const double spot = Noise::smooth(aroundX * 26 + p.y * 5, aroundZ * 26 + p.y * 23, 175);
    return mix(skin, Rgb{0.80, 0.62, 0.34}, 0.5 * smoothStep(0.62, 0.80, spot));
}

/// A studio: a large soft window at the left, a dim wall at the right, a white table.
Rgb studio(const Vec3& direction)
{
    Rgb light =
        mix(Rgb{0.34, 0.33, 0.32}, Rgb{0.13, 0.14, 0.16}, smoothStep(-0.5, 0.7, direction.y));
    const double across = direction.x / std::max(-direction.z, 0.05);
    const double up = direction.y / std::max(-direction.z, 0.05);
    if (direction.z < 0) {
        const double pane = smoothStep(-1.75, -1.60, across) * smoothStep(-0.45, -0.58, across) *
                            smoothStep(0.30, 0.42, up) * smoothStep(1.75, 1.62, up);
        const double bar = smoothStep(0.02, 0.045, std::abs(across + 1.08)) *
                           smoothStep(0.02, 0.045, std::abs(up - 1.02));
        light = light + Rgb{5.5, 5.4, 5.2} * (pane * (0.15 + 0.85 * bar));
    }
    light = light + Rgb{0.5, 0.55, 0.62} * smoothStep(0.75, 0.98, direction.x);
    return light;
}

double openness(const Vec3& p, const Vec3& normal)
{
    double open = 1;
    for (int i = 1; i <= 5; ++i) {
        const double away = 0.06 * i;
        open -= std::max(away - toSurface(p + normal * away), 0.0) * 1.5 / i;
    }
    const double table = smoothStep(-0.05, 0.55, p.y - kFloor);
    return clamp01(open) * (0.45 + 0.55 * table);
}

Rgb lightOf(const Vec3& p, const Vec3& towards)
{
    const Vec3 normal = normalAt(p);
    const bool onStem = toStem(p) < toSkin(p);
    const Rgb colour = onStem ? mix(Rgb{0.10, 0.055, 0.025}, Rgb{0.26, 0.17, 0.08},
                                    clamp01(0.5 + Noise::fractal(p.x * 30, p.y * 9, 5, 177)))
                              : skinColour(p);
    const Vec3 key = normalized({-0.62, 0.66, -0.48});
    const double facing = smoothStep(-0.25, 1.0, dot(normal, key));
    const Rgb table = Rgb{0.5, 0.47, 0.44} * (0.5 * (1 - normal.y));
    const Rgb fill = Rgb{0.30, 0.32, 0.36} * (0.5 + 0.5 * normal.y);
    const double open = openness(p, normal);
    const Rgb body = colour * ((Rgb{2.5, 2.42, 2.3} * (facing * facing) + table + fill) * open);
    if (onStem) {
        return body;
    }
    const double pores = Noise::fractal(p.x * 45 + p.z * 20, p.y * 45, 3, 179) * 0.012;
    const Vec3 uneven = normalized({normal.x + pores, normal.y - pores, normal.z});
    const Vec3 mirrored = towards + uneven * (-2 * dot(towards, uneven));
    const double fresnel = 0.04 + 0.60 * std::pow(1 - clamp01(-dot(towards, normal)), 4);
    return body + studio(mirrored) * (fresnel * open);
}

/// The shadow on the table, as opacity of black.
double shadowAt(const Vec3& eye, const Vec3& towards)
{
    if (towards.y >= 0) {
        return 0;
    }
    const Vec3 p = eye + towards * ((kFloor - eye.y) / towards.y);
    const double cast = std::hypot((p.x - 0.34) / 1.1, (p.z - 0.30) / 0.85);
    const double contact = std::hypot(p.x / 0.62, p.z / 0.62);
    return clamp01(0.42 * smoothStep(1.3, 0.2, cast) + 0.50 * smoothStep(1.15, 0.55, contact));
}

QRgb pixel(const Vec3& eye, const Vec3& towards, double pixelSize, double speck)
{
    double way = 2.0;
    double closest = 1;
    bool hit = false;
    for (int i = 0; i < kSteps && way < kFar && !hit; ++i) {
        const double free = toSurface(eye + towards * way);
        closest = std::min(closest, free / (way * pixelSize));
        hit = free < 0.0006;
        way += free;
    }
    const double shadow = shadowAt(eye, towards);
    const double cover = hit ? 1.0 : clamp01(1 - closest);
    const Rgb tone = cover > 0 ? Film::print(lightOf(eye + towards * way, towards)) : Rgb{};
    const double alpha = cover + shadow * (1 - cover);
    if (alpha <= 0) {
        return 0;
    }
    const auto byte = [&](double value) {
        return int(clamp01((value + speck) * cover / alpha) * 255 + 0.5);
    };
    return qRgba(byte(tone.r), byte(tone.g), byte(tone.b), int(alpha * 255 + 0.5));
}

} // namespace

QImage paintApple(const QSize& size)
{
    QImage photo(size, QImage::Format_ARGB32);
    uchar* const bits = photo.bits();
    const int stride = photo.bytesPerLine();
    const Vec3 eye{0.0, 0.95, -4.2};
    const double focal = 1.50 * std::min(size.width(), size.height());
    forEachIndex(size.height(), [&](int y) {
        auto* const row = reinterpret_cast<QRgb*>(bits + std::ptrdiff_t(y) * stride);
        for (int x = 0; x < size.width(); ++x) {
            const Vec3 towards = normalized(
                {(x - size.width() / 2.0) / focal, (size.height() / 2.0 - y) / focal - 0.20, 1.0});
            const double speck = (Noise::cell(x, y, 25) - 0.5) * 0.018;
            row[x] = pixel(eye, towards, 1 / focal, speck);
        }
    });
    return photo;
}
