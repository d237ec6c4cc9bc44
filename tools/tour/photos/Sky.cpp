#include "photos/Sky.h"

#include "photos/Noise.h"

Rgb Sky::air(const Vec3& direction) const
{
    const double up = std::max(direction.y, 0.0);
    const double towardsSun = std::max(dot(direction, sun), 0.0);
    const Rgb plain = mix(horizon, zenith, std::pow(smoothStep(0.0, 0.75, up), 0.62));
    const double spread = 0.30 * std::pow(towardsSun, 6) + 0.55 * std::pow(towardsSun, 40) +
                          1.2 * std::pow(towardsSun, 350);
    return plain + sunLight * (spread * glow);
}

Rgb Sky::at(const Vec3& direction) const
{
    Rgb light = air(direction);
    const double towardsSun = dot(direction, sun);
    light = light + sunLight * (disc * smoothStep(0.99985, 0.99992, towardsSun));
    return clouds(direction, light);
}

Rgb Sky::clouds(const Vec3& direction, const Rgb& behind) const
{
    const double up = std::max(direction.y, 0.0);
    if (cover <= -0.5) {
        return behind;
    }
    // The clouds lie on a ceiling, bent down a little so that they don't pile up at the horizon.
    const double reach = cloudScale / (up + 0.12);
    const double x = direction.x * reach;
    const double y = direction.z * reach;
    const double warp = Noise::fractal(x * 0.9, y * 0.9, 4, seed + 20) * 0.55;
    const auto thickness = [&](double px, double py) {
        return Noise::fractal(px + warp, py - warp, 8, seed) +
               0.35 * Noise::smooth(px * 0.35, py * 0.35, seed + 40);
    };
    const double here = thickness(x, y);
    const double cloud = smoothStep(0.02 - cover * 0.6, 0.42 - cover * 0.6, here);
    if (cloud <= 0) {
        return behind;
    }
    const double nearSun = thickness(x + sun.x * 0.16, y + sun.z * 0.16);
    const double lit = clamp01(0.55 + (here - nearSun) * 1.9 - (cloud - 0.6) * 0.45);
    const double towardsSun = std::max(dot(direction, sun), 0.0);
    // Thin edges let the sun through.
    const Rgb rim = sunLight * (glow * (1 - cloud) * 1.6 * std::pow(towardsSun, 12));
    const Rgb body = mix(cloudShade, cloudLit, lit) + rim;
    const double fade = smoothStep(-0.01, 0.16, direction.y);
    return mix(behind, mix(air(direction), body, 0.25 + 0.75 * fade), cloud * (0.35 + 0.6 * fade));
}
