#pragma once

#include <QFileDialog>
#include <QStringList>

namespace QMWidgets
{

/// The file dialogs of the program. Without a folder to begin in, each begins where files were last
/// chosen in this session, at first in the user's pictures folder, or at home if there is none.
class FileDialog
{
public:
    /// Lets the user choose one existing file, in a modal dialog; the arguments are those of
    /// getOpenFileNames. Returns its path, or an empty text if the user cancelled.
    static QString getOpenFileName(QWidget* parent, const QString& caption,
                                   const QString& folder = QString(),
                                   const QString& filter = QString(),
                                   QString* selectedFilter = nullptr,
                                   QFileDialog::Options options = QFileDialog::Options());

    /// Lets the user choose several existing files, in a modal dialog. An empty `filter` shows all
    /// files. `selectedFilter`, if given, names the filter to begin with and receives the one
    /// chosen. Returns the paths, or an empty list if the user cancelled.
    static QStringList getOpenFileNames(QWidget* parent, const QString& caption,
                                        const QString& folder = QString(),
                                        const QString& filter = QString(),
                                        QString* selectedFilter = nullptr,
                                        QFileDialog::Options options = QFileDialog::Options());

    /// Lets the user name a file to write, in a modal dialog that asks before an existing one is
    /// overwritten. `file`, if given, is the name to begin with. Returns its path, or an empty text
    /// if the user cancelled.
    static QString getSaveFileName(QWidget* parent, const QString& caption,
                                   const QString& file = QString(),
                                   const QString& filter = QString());
};

} // namespace QMWidgets
