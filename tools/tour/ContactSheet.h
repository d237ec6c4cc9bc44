#pragma once

#include <QString>

/// Draws every picture of the resources, with its states in a row and its name below, on the colour
/// of the page and at the size of the screen: what a designer looks through after a change. Needs a
/// QGuiApplication. Errors: what went wrong, or an empty text.
QString writeContactSheet(const QString& folder);
