#pragma once

#include <QStringList>

class Stage;

/// Draws the slides of the help in each of their languages into a folder. `photos` are the sample
/// photos; `work` is a folder for what is needed meanwhile. Complains to the stage about each slide
/// that can't be drawn.
void drawSlides(Stage& stage, const QStringList& photos, const QString& work,
                const QString& folder);
