#pragma once

#include <QList>
#include <QSize>
#include <QString>
#include <QUrl>

/// What becomes of a photo in a run.
enum class Fate {
    Saved,
    Unreadable, ///< no picture
    Vanished,   ///< deleted after it was dropped
    Unwritable  ///< its result's name is longer than a file's may be
};

struct StressPhoto {
    QUrl url;
    Fate fate;
};

/// The largest photo of that width.
inline QSize largestPhoto(int width)
{
    return {width, width * 2 / 3};
}

/// Writes so many photos of every fate into a new folder, one of them `largestWidth` wide.
QList<StressPhoto> makeStressPhotos(const QString& folder, int count, int largestWidth);
