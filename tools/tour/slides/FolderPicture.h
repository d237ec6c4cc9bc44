#pragma once

#include <QPixmap>
#include <QStringList>

/// The folder of a batch with its results, as a file manager shows it. `pictures` is the name of
/// the user's folder of pictures.
QPixmap folderPicture(const QStringList& results, const QString& pictures);
