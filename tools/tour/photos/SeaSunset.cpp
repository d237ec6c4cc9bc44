#include "photos/SeaSunset.h"

#include "photos/Film.h"
#include "photos/Noise.h"
#include "photos/Skies.h"

namespace
{

constexpr double kEye = 4.5; ///< metres above the sea
constexpr double kHorizon = 0.57;
constexpr double kFocal = 1.15;

/// How the sea slopes at a place: swell, waves and, near by, ripples.
Vec3 waterNormal(double x, double z)
{
    const auto height = [z](double px, double pz) {
        double sum = Noise::fractal(px / 9, pz / 4.2, 3, 101) * 0.62;
        sum += Noise::fractal(px / 2.1, pz / 1.0, 3, 102) * 0.17;
        if (z < 160) {
            sum += Noise::fractal(px / 0.42, pz / 0.24, 3, 103) * 0.034;
        }
        return sum;
    };
    // Far waves blend into each other, so that only their broad slope is left.
    const double step = 0.04 + z * 0.0011;
    const double here = height(x, z);
    const double flatten = 1.0 / (1.0 + z / 260);
    return normalized({(here - height(x + step, z)) / step * flatten, 1.0,
                       (here - height(x, z + step)) / step * flatten});
}

Rgb seaLight(const Sky& sky, const Vec3& towards)
{
    const double distance = kEye / std::max(-towards.y, 1e-5);
    const Vec3 normal = waterNormal(towards.x * distance, towards.z * distance);
    const double against = -dot(towards, normal);
    Vec3 mirrored = towards + normal * (2 * against);
    mirrored.y = std::abs(mirrored.y) + 0.004;
    mirrored = normalized(mirrored);
    const double share = 0.03 + 0.97 * std::pow(1 - clamp01(against), 5);

    const double towardsSun = std::max(dot(mirrored, sky.sun), 0.0);
    const Rgb glitter =
        sky.sunLight * (9 * std::pow(towardsSun, 900) + 1.1 * std::pow(towardsSun, 70));
    const Rgb depth{0.012, 0.030, 0.045};
    const Rgb water = mix(depth, sky.at(mirrored), share * 0.9) + glitter * (0.25 + 0.75 * share);
    const double lost = 1 - std::exp(-distance / 5200);
    return mix(water, sky.air({towards.x, 0.01, towards.z}), lost);
}

/// The height of the island's outline, in heights of the picture above the horizon.
double islandOutline(double x)
{
    const double hump = smoothStep(0.60, 0.80, x) * smoothStep(1.10, 0.83, x);
    const double rough = 0.75 + 0.5 * Noise::fractal(x * 14, 3.3, 6, 105);
    const double farShore =
        0.012 * smoothStep(0.42, 0.10, x) * (1 + Noise::fractal(x * 30, 8, 5, 106));
    return std::max(hump * rough * 0.085, farShore);
}

} // namespace

QImage paintSeaSunset(const QSize& size)
{
    const Sky sky = Skies::seaDusk();
    Canvas canvas(size);
    const double focal = kFocal * size.width();
    const double horizon = kHorizon * size.height();
    canvas.paint([&](int x, int y) {
        const Vec3 towards =
            normalized({(x - size.width() / 2.0) / focal, (horizon - y) / focal, 1.0});
        if (towards.y < 0) {
            return seaLight(sky, towards);
        }
        const double land = islandOutline(double(x) / size.width()) * size.height();
        const double edge = clamp01(land - (horizon - y) + 0.5);
        const Rgb behind = sky.at(towards);
        const double mist = smoothStep(land, 0, horizon - y) * 0.35 + 0.12;
        const Rgb shore = mix(Rgb{0.028, 0.020, 0.028}, sky.air(towards), mist);
        return land > 0 ? mix(behind, shore, edge) : behind;
    });
    Film film;
    film.exposure = 0.85;
    film.seed = 23;
    return film.develop(canvas);
}
