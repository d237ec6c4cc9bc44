#pragma once

#include <QImage>
#include <QSize>

/// Firs behind firs in the mist of an early morning; a photo in portrait format.
QImage paintMistyForest(const QSize& size);
