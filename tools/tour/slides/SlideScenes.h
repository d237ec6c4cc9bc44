#pragma once

#include "slides/Shot.h"
#include "slides/SlideTexts.h"

#include <functional>

class Stage;

/// What the scenes of one language share.
struct SlideSet {
    Stage& stage;
    const SlideTexts& texts;
    QStringList photos;    ///< the sample photos under names of that language
    QStringList results{}; ///< what the batch of the slides has saved
    std::function<void(const Shot& shot)> take{}; ///< draws the slide in hand
};

/// Each brings a freshly opened program to where its slide needs it, and takes the picture once.
using SlideScene = void (*)(SlideSet& set);

void slideOfDropping(SlideSet& set);
void slideOfPage(SlideSet& set);
void slideOfStepping(SlideSet& set);
void slideOfAdding(SlideSet& set);
void slideOfTuning(SlideSet& set);
void slideOfOrdering(SlideSet& set);
void slideOfWatermark(SlideSet& set);
void slideOfViewing(SlideSet& set);
void slideOfFavourites(SlideSet& set);
void slideOfSettings(SlideSet& set);
/// Leaves the paths of the results in the set, for the next one.
void slideOfSaving(SlideSet& set);
void slideOfFolder(SlideSet& set);

/// Opens the page with the photos of the set and with steps that are made known by their
/// parameters, in the order of the flow.
struct SlideStep {
    const char* operation;
    QString parameters;
};
void openWithFlow(SlideSet& set, const QVector<SlideStep>& steps);

/// A step that makes the colours stronger.
SlideStep strongerColours();
/// A step that writes the set's watermark on the photo.
SlideStep watermark(const SlideSet& set);
