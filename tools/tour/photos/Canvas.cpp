#include "photos/Canvas.h"

#include <numeric>
#include <QtConcurrentMap>

Canvas::Canvas(const QSize& size)
    : m_size(size),
      m_light(std::size_t(size.width()) * std::size_t(size.height()) * 3)
{
}

Rgb Canvas::at(int x, int y) const
{
    const float* light = &m_light[index(x, y)];
    return {double(light[0]), double(light[1]), double(light[2])};
}

void Canvas::set(int x, int y, const Rgb& light)
{
    float* target = &m_light[index(x, y)];
    target[0] = float(light.r);
    target[1] = float(light.g);
    target[2] = float(light.b);
}

Rgb Canvas::sample(double x, double y) const
{
    const double left = std::clamp(x, 0.0, double(width() - 1));
    const double top = std::clamp(y, 0.0, double(height() - 1));
    const int x0 = std::min(int(left), width() - 2);
    const int y0 = std::min(int(top), height() - 2);
    return mix(mix(at(x0, y0), at(x0 + 1, y0), left - x0),
               mix(at(x0, y0 + 1), at(x0 + 1, y0 + 1), left - x0), top - y0);
}

void Canvas::paint(const std::function<Rgb(int x, int y)>& painter)
{
    forEachIndex(height(), [&](int y) {
        for (int x = 0; x < width(); ++x) {
            set(x, y, painter(x, y));
        }
    });
}

void forEachIndex(int count, const std::function<void(int)>& work)
{
    std::vector<int> indices(static_cast<std::size_t>(count));
    std::iota(indices.begin(), indices.end(), 0);
    QtConcurrent::blockingMap(indices, [&work](const int& index) { work(index); });
}
