#pragma once

#include "photos/Light.h"

#include <cstdint>

/// A sky with its sun and a layer of clouds.
struct Sky {
    Vec3 sun{0.3, 0.5, 0.8}; ///< direction towards it, of length 1
    Rgb zenith;
    Rgb horizon;
    Rgb sunLight;          ///< what falls on a surface that faces the sun
    double glow = 0.3;     ///< how far the sun's light spreads in the air
    double disc = 40;      ///< brightness of the disc itself; 0 hides it
    double cover = 0.0;    ///< share of clouds, about -0.4 for none to 0.5 for a full cover
    double cloudScale = 1; ///< larger means smaller clouds
    Rgb cloudLit{1.0, 1.0, 1.0};
    Rgb cloudShade{0.5, 0.53, 0.6};
    std::uint32_t seed = 1;

    /// What one sees in a direction of length 1; below the horizon the horizon's own light.
    Rgb at(const Vec3& direction) const;
    /// The same without clouds and disc: the light of the haze between here and there.
    Rgb air(const Vec3& direction) const;

private:
    Rgb clouds(const Vec3& direction, const Rgb& behind) const;
};
