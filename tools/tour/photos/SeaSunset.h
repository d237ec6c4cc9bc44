#pragma once

#include <QImage>
#include <QSize>

/// The sun going down over an open sea, with an island at the horizon.
QImage paintSeaSunset(const QSize& size);
