#pragma once

#include <QImage>
#include <QVector>

/// What the alpha bytes of a random image are.
enum class RandomAlpha { Opaque, Any, Transparent };

/// An image of random words, the same for the same seed. The words of a premultiplied image hold
/// colours above their alpha too, as filters that take them for plain words leave them.
/// It carries a resolution, a colour space and a text.
QImage randomImage(const QSize& size, QImage::Format format, RandomAlpha alpha, quint32 seed);

/// Random images of all kinds that matter to filters: both formats of the flow and RGB32, all
/// alphas, single pixels, rows and columns, odd sizes, each width from 0 to 70.
QVector<QImage> randomImages();
