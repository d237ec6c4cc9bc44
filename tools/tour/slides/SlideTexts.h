#pragma once

#include <array>
#include <QString>
#include <QStringList>
#include <QVector>

constexpr int kSlides = 12;

/// What is written on the slides of one language, and in the program while they are taken.
struct SlideTexts {
    QString language;
    std::array<QString, kSlides> captions; ///< of one or two lines
    QStringList photoNames;                ///< base names of the sample photos, in their order
    QString watermark;
    QString flowName;
    QString newName;        ///< of the renamed results, before their numbers
    QString picturesFolder; ///< the user's folder of pictures, as file managers name it
};

/// One row for each language that slides are drawn in.
const QVector<SlideTexts>& slideTexts();
