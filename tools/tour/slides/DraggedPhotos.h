#pragma once

#include "slides/Shot.h"

/// A window that photos are being dragged onto.
Shot draggedOnto(QWidget* window, const QStringList& photos);
