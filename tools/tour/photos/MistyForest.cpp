#include "photos/MistyForest.h"

#include "photos/Film.h"
#include "photos/Noise.h"
#include "photos/Skies.h"

namespace
{

constexpr int kRows = 9; ///< of trees, the last being the farthest

/// How much of a pixel a fir covers. The place is measured in heights of that tree: from its tip
/// downwards, and sideways from its trunk.
double firCover(double side, double down, int seed)
{
    if (down < 0 || down > 1.15 || std::abs(side) > 0.32) {
        return 0;
    }
    // Branches hang in tiers, longer towards the ground and drooping, no two alike.
    const double hanging = down - std::abs(side) * 0.50;
    const double tiers = hanging * 23 + 1.6 * Noise::smooth(hanging * 9, seed * 3.7, 141);
    const double tier = tiers - std::floor(tiers);
    const int half = side < 0 ? 0 : 1;
    const double reach =
        0.80 + 1.0 * (Noise::cell(int(std::floor(tiers)), seed * 2 + half, 142) - 0.5);
    const double width = 0.155 * std::pow(down, 0.85) * reach * (0.40 + 0.60 * tier * tier);
    const double rough = smoothStep(0.0, 0.2, down);
    const double needles =
        Noise::fractal(side * 70 + seed * 7.1, down * 150, 5, 143) * 0.06 * rough;
    const double gaps = Noise::fractal(side * 38 + seed * 3.3, hanging * 60, 4, 144);
    const double crown =
        smoothStep(0.004, -0.004, std::abs(side) - width - needles) *
        smoothStep(-0.48, -0.30, gaps + 0.3 * (1 - std::abs(side) / (width + 0.01)));
    const double trunk = smoothStep(0.002, -0.001, std::abs(side) - 0.002 - 0.008 * down);
    return std::max(crown, trunk);
}

/// A row of trees along a slope: how much of the pixel they cover, in units of the picture's width.
double rowCover(int row, double x, double y)
{
    const double far = double(row) / (kRows - 1);
    const double tall = mix(1.15, 0.15, std::pow(far, 0.55));
    const double spacing = tall * 0.23;
    const double foot =
        mix(1.62, 0.80, std::pow(far, 0.7)) +
        0.30 * (Noise::fractal(x * 0.9 + row * 5.3, row * 2.1, 3, 151)) * (0.5 + far) +
        (row % 2 ? -0.10 : 0.10) * (x - 0.5);
    double cover = smoothStep(0.002, -0.002, foot - y);
    if (cover >= 1) {
        return cover;
    }
    const int nearest = int(std::floor(x / spacing));
    for (int i = nearest - 1; i <= nearest + 1; ++i) {
        const int seed = i * 31 + row * 977;
        const double size = tall * (0.62 + 0.6 * Noise::cell(i, row, 152));
        const double trunk = (i + 0.15 + 0.7 * Noise::cell(i, row, 153)) * spacing;
        const double down = (y - (foot - size)) / size;
        const double lean = (Noise::cell(i, row, 154) - 0.5) * 0.03 * down;
        cover = std::max(cover, firCover((x - trunk) / size + lean, down, seed));
    }
    return cover;
}

/// What one sees of a row of trees: its needles, behind the mist that lies before them.
Rgb rowLight(double far, double clump, double drift, const Rgb& air)
{
    const double mist = clamp01(std::pow(far, 0.62) * 0.93 + 0.16 * drift * (0.2 + far));
    const Rgb needles =
        mix(Rgb{0.010, 0.020, 0.014}, Rgb{0.035, 0.055, 0.030}, clamp01(0.5 + clump));
    return mix(needles, air * 0.92, mist);
}

Rgb lightAt(const Sky& sky, double x, double y)
{
    // The rows that a nearer one hides need no paint.
    double covers[kRows];
    int last = 0;
    for (; last < kRows - 1; ++last) {
        covers[last] = rowCover(last, x, y);
        if (covers[last] >= 1) {
            break;
        }
    }
    if (last == kRows - 1) {
        covers[last] = rowCover(last, x, y);
    }
    const Vec3 level = normalized({x - 0.5, std::max(0.82 - y, 0.03), 1.35});
    const Rgb air = sky.air(level);
    Rgb light = covers[last] < 1 ? sky.at(level) : air;
    for (int row = last; row >= 0; --row) {
        const double far = double(row) / (kRows - 1);
        // Mist gathers low between the rows, and drifts.
        const double drift = Noise::fractal(x * 2.2 + row * 3.1, y * 4.5, 4, 162);
        if (covers[row] > 0) {
            const double clump = Noise::fractal(x * 5 + row, y * 7, 5, 161);
            light = mix(light, rowLight(far, clump, drift, air), covers[row]);
        }
        const double bank = smoothStep(0.70, 1.45, y) * smoothStep(0.0, 0.5, far) *
                            (0.22 + 0.5 * clamp01(drift + 0.3));
        light = mix(light, air * 0.9, bank * 0.45);
    }
    return light;
}

} // namespace

QImage paintMistyForest(const QSize& size)
{
    const Sky sky = Skies::forestDawn();
    Canvas canvas(size);
    canvas.paint([&](int x, int y) {
        return lightAt(sky, double(x) / size.width(), double(y) / size.width());
    });
    Film film;
    film.exposure = 0.95;
    film.grain = 0.016;
    film.seed = 24;
    return film.develop(canvas);
}
