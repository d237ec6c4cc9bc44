#pragma once

#include <QImage>
#include <QSize>

/// Green hills with fields and groves under the clouds of a summer evening.
QImage paintHills(const QSize& size);
