#pragma once

#include "photos/Canvas.h"
#include "photos/Sky.h"

#include <cstdint>
#include <QImage>
#include <vector>

class Terrain;

/// A camera in front of a terrain under a sky, with a still water wherever the ground lies deep.
/// The picture is built column by column from the near to the far, each place hiding what is
/// behind and below it.
class Landscape
{
public:
    struct View {
        QSize size;
        double focal = 1.0;   ///< in widths of the picture
        double horizon = 0.5; ///< in heights of the picture, from its top
        double eye = 30;      ///< height of the camera
        double nearest = 10;  ///< distance of the first ground that is seen
        double farthest = 14000;
        double water = -1e9;           ///< level of the water
        double haze = 1.0 / 9000;      ///< share of light lost with each metre
        double hazeHeight = 500;       ///< where the haze has thinned to a third
        Rgb ambient{0.25, 0.32, 0.45}; ///< what the sky sends to a place in the shade
        Rgb waterDepth{0.01, 0.035, 0.04};
        double ripple = 1; ///< how much the water moves
    };

    Landscape(const View& view, const Sky& sky, const Terrain& terrain);

    Canvas paint() const;

private:
    /// Distance of the ground in each pixel; 0 for the sky, negative for water.
    using Depths = std::vector<float>;

    void paintColumn(int x, Canvas& canvas, Depths& depths) const;
    Rgb paintWater(int x, int y, double distance, const Canvas& canvas, const Depths& depths) const;
    Rgb ground(double x, double z, const Vec3& direction) const;
    Rgb throughHaze(const Rgb& light, double height, double distance, const Vec3& direction) const;
    Vec3 direction(double x, double y) const;
    int octavesAt(double distance) const;
    double surface(double x, double z) const;

    void layShadows();
    double sunShare(double x, double z) const;

    View m_view;
    const Sky& m_sky;
    const Terrain& m_terrain;
    double m_focal;
    double m_horizon;
    std::vector<float> m_shadows;
};

/// A landscape on film; `grainSeed` lets no two photos share their grain.
QImage photograph(const Landscape::View& view, const Sky& sky, const Terrain& terrain,
                  std::uint32_t grainSeed);
