#include "photos/Hills.h"

#include "photos/Landscape.h"
#include "photos/Noise.h"
#include "photos/Skies.h"
#include "photos/Terrain.h"
#include "photos/Trees.h"

namespace
{

/// Soft swells with fields upon them, parted by rows of trees.
class Country : public Terrain
{
public:
    double height(double x, double z, int octaves) const override
    {
        const double ground = bare(x, z, octaves);
        if (z > 4500) {
            return ground + 9 * woodShare(x, z);
        }
        const double wood = woodShare(x, z);
        if (wood < 0.02) {
            return ground;
        }
        const double leaves = Noise::fractal(x / 1.7, z / 1.7, 3, 58) * 1.9;
        return ground + (Trees::canopy(x, z, {7, 10, 5.5, true}, 53) + leaves) * wood;
    }

    Rgb colour(const Vec3& place, const Vec3& normal) const override
    {
        const double fine = Noise::fractal(place.x / 5, place.z / 5, 6, 61);
        const double broad = Noise::fractal(place.x / 130, place.z / 130, 4, 67);
        const Rgb field = fieldColour(place.x, place.z);
        const Rgb grass = field * (0.92 + 0.35 * fine + 0.35 * broad);
        const Rgb leaves =
            mix(Rgb{0.022, 0.048, 0.012}, Rgb{0.085, 0.12, 0.03}, clamp01(0.5 + fine));
        const double wood = smoothStep(0.05, 0.4, woodShare(place.x, place.z));
        return mix(grass, leaves, std::max(wood, smoothStep(0.55, 0.35, normal.y)));
    }

private:
    static double bare(double x, double z, int octaves)
    {
        const double broad = Noise::fractal(x / 1500 + 2.2, z / 1500, 3, 51) * 190;
        const double far =
            smoothStep(2800, 9500, z) * Noise::ridged(x / 5200, z / 5200, 6, 55) * 620;
        const double grain = z < 400 ? Noise::fractal(x / 0.9, z / 0.9, 3, 57) * 0.10 : 0;
        return broad + Noise::fractal(x / 380, z / 380, std::min(octaves, 4), 52) * 26 + far +
               grain;
    }

    /// Fields are the cells of a bent grid.
    static Rgb fieldColour(double x, double z)
    {
        const double bentX = x + Noise::fractal(x / 500, z / 500, 2, 63) * 190;
        const double bentZ = z + Noise::fractal(x / 500, z / 500, 2, 64) * 190;
        const int column = int(std::floor(bentX / 210));
        const int row = int(std::floor(bentZ / 290 + Noise::cell(column, 3, 65)));
        static const Rgb kCrops[] = {{0.15, 0.22, 0.045}, {0.21, 0.27, 0.06},  {0.36, 0.30, 0.11},
                                     {0.11, 0.18, 0.045}, {0.27, 0.27, 0.085}, {0.17, 0.25, 0.05}};
        const double choice = Noise::cell(column, row, 66);
        const Rgb crop = kCrops[int(choice * 6)];
        const double furrow = 0.94 + 0.06 * std::sin((choice > 0.5 ? bentX : bentZ) * 1.1);
        return crop * furrow;
    }

    static double woodShare(double x, double z)
    {
        const double groves = Noise::fractal(x / 260, z / 260, 4, 68);
        const double bentX = x + Noise::fractal(x / 500, z / 500, 2, 63) * 190;
        const double hedge = std::abs(bentX / 210 - std::round(bentX / 210)) * 210;
        const double gaps = Noise::smooth(x / 60, z / 60, 69);
        const double hedges = smoothStep(7, 3, hedge) * smoothStep(-0.15, 0.1, gaps);
        return std::max(smoothStep(0.20, 0.27, groves), hedges) * smoothStep(110, 190, z);
    }
};

} // namespace

QImage paintHills(const QSize& size)
{
    Landscape::View view{size, 1.0, 0.50, 78, 14, 15000};
    view.haze = 1.0 / 8500;
    view.hazeHeight = 420;
    view.ambient = {0.22, 0.28, 0.38};
    return photograph(view, Skies::summerEvening(), Country(), 22);
}
