#include "FileDialog.h"

#include <QFileInfo>

namespace QMWidgets
{

namespace
{

QStringList openFiles(QFileDialog::FileMode mode, QWidget* parent, const QString& caption,
                      const QString& folder, const QString& filter, QString* selectedFilter,
                      QFileDialog::Options options)
{
    QFileDialog dialog(parent, caption, folder, filter);
    dialog.setFileMode(mode);
    dialog.setOptions(options);
    if (selectedFilter && !selectedFilter->isEmpty()) {
        dialog.selectNameFilter(*selectedFilter);
    }
    if (dialog.exec() != QDialog::Accepted) {
        return QStringList();
    }
    if (selectedFilter) {
        *selectedFilter = dialog.selectedNameFilter();
    }
    return dialog.selectedFiles();
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
    QFileDialog dialog(parent, caption, QFileInfo(file).path(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.selectFile(QFileInfo(file).fileName());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace QMWidgets
