#pragma once

#include <QImage>
#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <QUrl>

/// A picture of reproducible noise, opaque or with random alpha.
QImage noise(const QSize& size, quint32 seed, QImage::Format format = QImage::Format_ARGB32,
             bool opaque = false);

/// A folder of photo files that goes with the object.
class Photos
{
public:
    /// Writes a picture of noise, in the format that the name's extension tells.
    QUrl add(const QString& name, const QSize& size = QSize(60, 40), quint32 seed = 1);
    QUrl add(const QString& name, const QImage& picture);
    /// Writes a file of any content.
    QUrl addFile(const QString& name, const QByteArray& content);
    QUrl addFolder(const QString& name);

    QString path(const QString& name) const { return m_dir.filePath(name); }
    QString folder() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};
