#pragma once

#include <functional>
#include <QImage>
#include <QPixmap>
#include <QString>
#include <QVector>

class BaseNode;

/// Takes an image through an operation, as Operation::processFromXml does.
using ImageFilter = std::function<QImage(QImage image)>;

/// A row of the operation table. Its name is the one key that ties the add menu, the tabs, the
/// factory, flow files and the batch together; it is never translated.
struct Operation {
    QString name;
    QString icon; ///< resource file of the icon, without path
    /// Makes a node of this operation, with no parent.
    BaseNode* (*create)(const QString& name);
    /// Applies the operation as a parameter text tells it. An image that is given away and that
    /// nobody else holds leaves its memory to the result, if the operation can. Runs on any thread.
    QImage (*processFromXml)(QImage image, const QString& xml);
    /// Reads a text once for many images; null where reading costs next to nothing.
    ImageFilter (*readFilter)(const QString& xml) = nullptr;

    /// What processFromXml does with this text, for many images. It keeps what it has read.
    ImageFilter filterFromXml(const QString& xml) const;
};

/// All operations, in the add menu's order. An operation is added by a row here and a class for it.
const QVector<Operation>& operations();

/// The row of that name, compared whole and case-sensitively. Errors: null for any other name.
const Operation* findOperation(const QString& name);

/// The icon of the operation whose name the text holds, so that a longer text gets one too. Errors:
/// a null pixmap if it holds none.
QPixmap nodeIcon(const QString& operationName);
