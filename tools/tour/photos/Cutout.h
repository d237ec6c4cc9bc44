#pragma once

#include <QImage>
#include <QSize>

/// An apple cut out of its background: transparent around it, half transparent in its shadow.
/// Shape: ARGB32.
QImage paintApple(const QSize& size);
