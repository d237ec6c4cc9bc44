#pragma once

#include <QImage>
#include <QString>
#include <QStringList>
#include <QVector>

/// A photo that can be painted whenever one is needed, the same on each run.
struct SamplePhoto {
    QString fileName;
    QSize size;
    QImage (*paint)(const QSize& size);
};

/// Landscapes, one photo in portrait format, one cut out of its background.
const QVector<SamplePhoto>& samplePhotos();

/// Writes all of them into a folder that exists, and gives their paths. With `keep`, a file that is
/// there already and has the right size stays. Errors: an empty list if one can't be written.
QStringList writeSamplePhotos(const QString& folder, bool keep);
