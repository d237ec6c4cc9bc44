#include "photos/Landscape.h"

#include "photos/Film.h"
#include "photos/Noise.h"
#include "photos/Terrain.h"

namespace
{

constexpr int kShadowCells = 700;
constexpr int kShadowSteps = 60;
/// Each step of a column reaches this much farther than the one before.
constexpr double kStride = 1.0022;

std::size_t cellOf(int column, int row)
{
    return std::size_t(row) * std::size_t(kShadowCells) + std::size_t(column);
}

} // namespace

Landscape::Landscape(const View& view, const Sky& sky, const Terrain& terrain)
    : m_view(view),
      m_sky(sky),
      m_terrain(terrain),
      m_focal(view.focal * view.size.width()),
      m_horizon(view.horizon * view.size.height())
{
    layShadows();
}

Canvas Landscape::paint() const
{
    Canvas canvas(m_view.size);
    const int width = canvas.width();
    Depths depths(std::size_t(width) * std::size_t(canvas.height()));
    forEachIndex(width, [&](int x) { paintColumn(x, canvas, depths); });

    const Canvas above = canvas;
    forEachIndex(canvas.height(), [&](int y) {
        for (int x = 0; x < width; ++x) {
            const double depth =
                double(depths[std::size_t(y) * std::size_t(width) + std::size_t(x)]);
            if (depth < 0) {
                canvas.set(x, y, paintWater(x, y, -depth, above, depths));
            }
        }
    });
    return canvas;
}

Vec3 Landscape::direction(double x, double y) const
{
    return normalized({(x - m_view.size.width() / 2.0) / m_focal, (m_horizon - y) / m_focal, 1.0});
}

int Landscape::octavesAt(double distance) const
{
    return std::clamp(int(16 - std::log2(distance + 1)), 5, 12);
}

double Landscape::surface(double x, double z) const
{
    return std::max(m_terrain.height(x, z, octavesAt(z)), m_view.water);
}

void Landscape::paintColumn(int x, Canvas& canvas, Depths& depths) const
{
    const double sideways = (x - canvas.width() / 2.0) / m_focal;
    const auto rowOf = [this](double height, double z) {
        return m_horizon - (height - m_view.eye) * m_focal / z;
    };
    int bottom = canvas.height(); // rows from here on are painted
    double lastZ = m_view.nearest;
    double lastRow = canvas.height();
    for (double z = m_view.nearest; z < m_view.farthest && bottom > 0; z *= kStride) {
        const double height = surface(sideways * z, z);
        const double row = rowOf(height, z);
        const bool wet = height <= m_view.water;
        for (; bottom > 0 && bottom - 1 >= row; --bottom) {
            const int y = bottom - 1;
            const double share = lastRow > row ? clamp01((lastRow - y) / (lastRow - row)) : 1.0;
            const double there = mix(lastZ, z, share);
            depths[std::size_t(y) * std::size_t(canvas.width()) + std::size_t(x)] =
                float(wet ? -there : there);
            if (!wet) {
                canvas.set(x, y, ground(sideways * there, there, direction(x, y)));
            }
        }
        lastZ = z;
        lastRow = row;
    }
    for (int y = bottom - 1; y >= 0; --y) {
        canvas.set(x, y, m_sky.at(direction(x, y)));
    }
}

Rgb Landscape::ground(double x, double z, const Vec3& towards) const
{
    const double step = std::max(0.15, z / m_focal * 1.2);
    const double here = surface(x, z);
    const Vec3 normal = normalized(
        {(here - surface(x + step, z)) / step, 1.0, (here - surface(x, z + step)) / step});
    const Rgb colour = m_terrain.colour({x, here, z}, normal);
    const double facing = std::max(dot(normal, m_sky.sun), 0.0) * sunShare(x, z);
    const Rgb light = m_sky.sunLight * facing + m_view.ambient * (0.55 + 0.45 * normal.y) +
                      m_view.ambient * Rgb{1.0, 0.85, 0.6} * (0.25 * (1 - normal.y));
    return throughHaze(colour * light, here, z, towards);
}

Rgb Landscape::throughHaze(const Rgb& light, double height, double distance,
                           const Vec3& towards) const
{
    const double density = m_view.haze * std::exp(-std::max(height, 0.0) / m_view.hazeHeight);
    const double lost = 1 - std::exp(-distance * density);
    const Vec3 level = normalized({towards.x, std::max(towards.y, 0.01), towards.z});
    return mix(light, m_sky.air(level), lost);
}

Rgb Landscape::paintWater(int x, int y, double distance, const Canvas& canvas,
                          const Depths& depths) const
{
    const double worldX = (x - canvas.width() / 2.0) / m_focal * distance;
    // Wind comes in patches; the still ones mirror cleanly.
    const double wind =
        0.35 + 0.65 * smoothStep(-0.1, 0.45, Noise::fractal(worldX / 170, distance / 60, 3, 71));
    const double tilt = Noise::fractal(worldX / 1.6, distance / 0.55, 4, 72) * wind * m_view.ripple;
    const double tiltAcross =
        Noise::fractal(worldX / 1.6, distance / 0.55, 3, 78) * wind * m_view.ripple;
    const double calm = std::min(1.0, 220.0 / distance);
    const double mirrored = 2 * m_horizon - y - std::abs(tilt) * m_focal * 0.035 * (0.3 + calm);
    const double beside = x + tiltAcross * m_focal * 0.008 * (0.3 + calm);

    const int rowAbove = std::clamp(int(mirrored), 0, canvas.height() - 1);
    const int column = std::clamp(int(beside), 0, canvas.width() - 1);
    const bool wet =
        depths[std::size_t(rowAbove) * std::size_t(canvas.width()) + std::size_t(column)] < 0;
    const Vec3 up = direction(beside, mirrored);
    const Rgb mirror = mirrored >= 0 && !wet ? canvas.sample(beside, mirrored) : m_sky.at(up);

    const double grazing = 1 - std::max(-direction(x, y).y - tilt * 0.02, 0.0);
    const double share = 0.02 + 0.98 * std::pow(grazing, 5);
    const Rgb water = mix(m_view.waterDepth, mirror, clamp01(share * 0.95));
    return throughHaze(water, m_view.water, distance, direction(x, y));
}

void Landscape::layShadows()
{
    m_shadows.resize(cellOf(0, kShadowCells));
    const double halfWidth = m_view.farthest * 0.5 / m_view.focal;
    std::vector<double> heights(m_shadows.size());
    const auto place = [&](int column, int row) {
        const double share = (row + 0.5) / kShadowCells;
        return Vec3{((column + 0.5) / kShadowCells - 0.5) * 2 * halfWidth, 0,
                    share * m_view.farthest};
    };
    forEachIndex(kShadowCells, [&](int row) {
        for (int column = 0; column < kShadowCells; ++column) {
            const Vec3 at = place(column, row);
            heights[cellOf(column, row)] = m_terrain.height(at.x, at.z, 7);
        }
    });
    const double cellX = 2 * halfWidth / kShadowCells;
    const double cellZ = m_view.farthest / kShadowCells;
    const double level = std::hypot(m_sky.sun.x / cellX, m_sky.sun.z / cellZ);
    forEachIndex(kShadowCells, [&](int row) {
        for (int column = 0; column < kShadowCells; ++column) {
            double share = 1;
            const double start = heights[cellOf(column, row)];
            for (int step = 1; step < kShadowSteps; ++step) {
                const int c = int(column + 0.5 + m_sky.sun.x / cellX / level * step);
                const int r = int(row + 0.5 + m_sky.sun.z / cellZ / level * step);
                if (c < 0 || r < 0 || c >= kShadowCells || r >= kShadowCells) {
                    break;
                }
                const double way = step / level;
                const double ray = start + m_sky.sun.y * way;
                share = std::min(share, 0.5 + (ray - heights[cellOf(c, r)]) / (way * 0.05 + 4));
            }
            m_shadows[cellOf(column, row)] = float(clamp01(share));
        }
    });
}

double Landscape::sunShare(double x, double z) const
{
    const double halfWidth = m_view.farthest * 0.5 / m_view.focal;
    const double column =
        std::clamp((x / (2 * halfWidth) + 0.5) * kShadowCells - 0.5, 0.0, kShadowCells - 1.001);
    const double row =
        std::clamp(z / m_view.farthest * kShadowCells - 0.5, 0.0, kShadowCells - 1.001);
    const int c = int(column);
    const int r = int(row);
    const auto at = [this](int i, int j) {
        return double(
            m_shadows[cellOf(std::min(i, kShadowCells - 1), std::min(j, kShadowCells - 1))]);
    };
    return mix(mix(at(c, r), at(c + 1, r), column - c),
               mix(at(c, r + 1), at(c + 1, r + 1), column - c), row - r);
}

QImage photograph(const Landscape::View& view, const Sky& sky, const Terrain& terrain,
                  std::uint32_t grainSeed)
{
    Film film;
    film.seed = grainSeed;
    return film.develop(Landscape(view, sky, terrain).paint());
}
