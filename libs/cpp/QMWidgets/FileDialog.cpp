#include "FileDialog.h"

namespace QMWidgets
{

QStringList FileDialog::getOpenFileNames(QWidget* parent, const QString& caption,
                                         const QString& folder, const QString& filter,
                                         QString* selectedFilter, QFileDialog::Options options)
{
    QFileDialog dialog(parent, caption, folder, filter);
    dialog.setFileMode(QFileDialog::ExistingFiles);
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

} // namespace QMWidgets
