#pragma once

#include <QImage>
#include <QSize>

/// A lake among snowy mountains on a clear morning.
QImage paintAlpineLake(const QSize& size);
