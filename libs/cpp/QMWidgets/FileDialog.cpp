#include "FileDialog.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace QMWidgets
{

namespace
{

/// Where the last files were chosen in this session; empty before.
QString& lastFolder()
{
    static QString folder;
    return folder;
}

/// Qt would begin in the working directory, which is the program's own folder.
QString startFolder()
{
    const QString pictures =
        QStandardPaths::standardLocations(QStandardPaths::PicturesLocation).value(0);
    for (const QString& folder : {lastFolder(), pictures}) {
        if (!folder.isEmpty() && QDir(folder).exists()) {
            return folder;
        }
    }
    return QDir::homePath();
}

/// The files that the user chooses, or none after a cancel.
QStringList chosenIn(QFileDialog& dialog)
{
    if (dialog.exec() != QDialog::Accepted) {
        return QStringList();
    }
    const QStringList files = dialog.selectedFiles();
    if (!files.isEmpty()) {
        lastFolder() = QFileInfo(files.first()).absolutePath();
    }
    return files;
}

QStringList openFiles(QFileDialog::FileMode mode, QWidget* parent, const QString& caption,
                      const QString& folder, const QString& filter, QString* selectedFilter,
                      QFileDialog::Options options)
{
    QFileDialog dialog(parent, caption, folder.isEmpty() ? startFolder() : folder, filter);
    dialog.setFileMode(mode);
    dialog.setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty()) {
        dialog.selectNameFilter(*selectedFilter);
    }
    const QStringList files = chosenIn(dialog);
    if (selectedFilter && !files.isEmpty()) {
        *selectedFilter = dialog.selectedNameFilter();
    }
    return files;
}

} // namespace

QString FileDialog::getOpenFileName(QWidget* parent, const QString& caption, const QString& folder,
                                    const QString& filter, QString* selectedFilter,
                                    QFileDialog::Options options)
{
    return openFiles(QFileDialog::ExistingFile, parent, caption, folder, filter, selectedFilter,
                     options)
        .value(0);
}

QStringList FileDialog::getOpenFileNames(QWidget* parent, const QString& caption,
                                         const QString& folder, const QString& filter,
                                         QString* selectedFilter, QFileDialog::Options options)
{
    return openFiles(QFileDialog::ExistingFiles, parent, caption, folder, filter, selectedFilter,
                     options);
}

QString FileDialog::getSaveFileName(QWidget* parent, const QString& caption, const QString& file,
                                    const QString& filter)
{
    QFileDialog dialog(parent, caption, file.isEmpty() ? startFolder() : QFileInfo(file).path(),
                       filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QFileInfo(file).fileName());
    return chosenIn(dialog).value(0);
}

} // namespace QMWidgets
