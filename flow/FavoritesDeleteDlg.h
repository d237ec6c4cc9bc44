#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

/// Asks which of the saved flows is to be deleted. The file names are listed in the reverse of the
/// order in which they were added.
class FavoritesDeleteDlg : public QDialog
{
    Q_OBJECT

public:
    explicit FavoritesDeleteDlg(QWidget* parent);

    /// File name of the chosen flow; empty if the list is empty.
    QString selectedFlow() const;
    void addFlow(const QString& fileName);
    void clearFlows();

protected:
    void showEvent(QShowEvent* event) override;

private:
    QListWidget* m_list;
    QPushButton* m_cancelButton;
};
