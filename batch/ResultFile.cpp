#include "batch/ResultFile.h"

#include <QMWidgets/WholeFile.h>

#include <QDir>
#include <QFileDevice>
#include <QFileInfo>
#include <QImage>

bool liesIn(const QString& folder, const QString& file)
{
    const QFileInfo cleaned(QDir::cleanPath(QFileInfo(file).absoluteFilePath()));
    return cleaned.absolutePath() == QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
}

bool saveResult(const QImage& image, const QString& file, const QByteArray& format, int quality)
{
    if (image.isNull()) {
        return false;
    }
    bool isTried = false;
    const QMWidgets::FileWriter write = [&](QFileDevice& device) {
        isTried = true;
        return image.save(&device, format.constData(), quality);
    };
    // Where nothing can be made, what is there may still be written to.
    return QMWidgets::writeWholeFile(file, write) ||
           (!isTried && QMWidgets::writeOrRemove(file, write));
}
