#pragma once

#include "photos/Light.h"

#include <cstddef>
#include <functional>
#include <QSize>
#include <vector>

/// The light that falls on a photo's film, before it is developed.
class Canvas
{
public:
    explicit Canvas(const QSize& size);

    int width() const { return m_size.width(); }
    int height() const { return m_size.height(); }
    QSize size() const { return m_size; }

    Rgb at(int x, int y) const;
    void set(int x, int y, const Rgb& light);

    /// Between pixels; places outside count as the nearest edge.
    Rgb sample(double x, double y) const;

    /// Sets each pixel to what the painter gives for it. The rows are painted on all cores, so the
    /// painter only reads.
    void paint(const std::function<Rgb(int x, int y)>& painter);

private:
    std::size_t index(int x, int y) const
    {
        return (std::size_t(y) * std::size_t(m_size.width()) + std::size_t(x)) * 3;
    }

    QSize m_size;
    std::vector<float> m_light;
};

/// Calls `work` for each number from 0 to below `count`, on all cores, and waits for the end.
void forEachIndex(int count, const std::function<void(int)>& work);
