#include "photos/AlpineLake.h"

#include "photos/Landscape.h"
#include "photos/Noise.h"
#include "photos/Skies.h"
#include "photos/Terrain.h"
#include "photos/Trees.h"

namespace
{

/// Shores that rise to the sides, a wooded foot, and a range across the end of the lake.
class Mountains : public Terrain
{
public:
    double height(double x, double z, int octaves) const override
    {
        const double warpX = Noise::fractal(x / 1300, z / 1300, 3, 5) * 210;
        const double warpZ = Noise::fractal(x / 1300, z / 1300, 3, 9) * 210;
        const double shore = std::abs(x + 120 + warpX * 0.8) - 260 - z * 0.11;
        const double range = smoothStep(2600, 6800, z + warpZ * 3);
        const double sides = smoothStep(-40, 1700, shore) * smoothStep(150, 2400, z);
        const double crags =
            Noise::ridged((x + warpX) / 4300 + 3.1, (z + warpZ) / 4300, octaves, 11);
        const double swells = Noise::fractal(x / 420, z / 420, std::min(octaves, 7), 13);
        const double rubble = Noise::fractal(x / 330 + 7, z / 330, octaves - 1, 17);
        double ground =
            -24 + smoothStep(-60, 240, shore) * 46 + swells * 16 * smoothStep(-60, 160, shore);
        ground += sides * (60 + crags * 620 + rubble * 60);
        ground += range * (crags * 1750 - 330 + rubble * 150);
        return ground + wood(x, z, ground, swells);
    }

    Rgb colour(const Vec3& place, const Vec3& normal) const override
    {
        const double fine = Noise::fractal(place.x / 23, place.z / 23 + place.y / 17, 5, 31);
        const double broad = Noise::fractal(place.x / 210, place.z / 210, 4, 37);
        const Rgb rock = mix(Rgb{0.15, 0.135, 0.125}, Rgb{0.30, 0.28, 0.26}, clamp01(0.5 + fine));
        const Rgb meadow =
            mix(Rgb{0.085, 0.13, 0.03}, Rgb{0.16, 0.16, 0.05}, clamp01(0.5 + broad + fine * 0.4));
        const Rgb firs =
            mix(Rgb{0.014, 0.034, 0.014}, Rgb{0.05, 0.085, 0.03}, clamp01(0.45 + fine * 0.9));
        Rgb ground = mix(meadow, rock, smoothStep(0.86, 0.66, normal.y + fine * 0.06));
        ground = mix(ground, rock, smoothStep(380, 560, place.y + broad * 190));
        const double snow = smoothStep(500, 760, place.y + broad * 240 + fine * 110) *
                            smoothStep(0.46, 0.62, normal.y + fine * 0.22);
        // The firs come last: their crowns are steeper than any rock.
        ground = mix(ground, firs, woodShare(place.x, place.z, place.y));
        return mix(ground, Rgb{0.88, 0.90, 0.94}, snow);
    }

private:
    static double woodShare(double x, double z, double ground)
    {
        const double groves = Noise::fractal(x / 330, z / 330, 4, 41);
        return smoothStep(-0.20, -0.04, groves + 0.12) * smoothStep(3.5, 9, ground) *
               smoothStep(560, 380, ground + groves * 160);
    }

    static double wood(double x, double z, double ground, double swells)
    {
        if (ground < 3.5 || ground > 620 || z > 5200) {
            return 0;
        }
        const double share = woodShare(x, z, ground);
        return share > 0.02 ? Trees::canopy(x, z, {9, 21 + 8 * swells, 4.6, false}, 43) * share : 0;
    }
};

} // namespace

QImage paintAlpineLake(const QSize& size)
{
    Landscape::View view{size, 0.92, 0.56, 9, 12, 12500};
    view.water = 0;
    view.haze = 1.0 / 15000;
    view.hazeHeight = 900;
    view.ambient = {0.20, 0.27, 0.40};
    return photograph(view, Skies::alpineMorning(), Mountains(), 21);
}
