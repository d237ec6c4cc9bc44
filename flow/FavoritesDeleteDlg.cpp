#include "flow/FavoritesDeleteDlg.h"

#include <QMWidgets/ButtonRow.h>

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>

namespace
{

QPushButton* makeButton(const QString& text, const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(text, parent);
    button->setFlat(true);
    button->setObjectName(objectName);
    button->setFixedHeight(32);
    return button;
}

} // namespace

FavoritesDeleteDlg::FavoritesDeleteDlg(QWidget* parent)
    : QDialog(parent),
      m_list(new QListWidget(this)),
      m_cancelButton(makeButton(tr("&Cancel"), QStringLiteral("PushButton"), this))
{
    setWindowTitle(tr("Delete the flow"));
    setObjectName(QStringLiteral("Dialog"));
    setMinimumSize(400, 300);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setAccessibleName(tr("Flows"));
    auto* deleteButton = makeButton(tr("&Delete"), QStringLiteral("DeleteButton"), this);
    connect(m_cancelButton, &QPushButton::clicked, this, &FavoritesDeleteDlg::reject);
    connect(deleteButton, &QPushButton::clicked, this, &FavoritesDeleteDlg::accept);

    QBoxLayout* const buttons = QMWidgets::makeButtonRow();
    buttons->addWidget(deleteButton);
    buttons->addWidget(m_cancelButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
}

QString FavoritesDeleteDlg::selectedFlow() const
{
    const QListWidgetItem* const item = m_list->currentItem();
    return item ? item->text() : QString();
}

void FavoritesDeleteDlg::addFlow(const QString& fileName)
{
    m_list->insertItem(0, fileName);
}

void FavoritesDeleteDlg::clearFlows()
{
    m_list->clear();
}

void FavoritesDeleteDlg::showEvent(QShowEvent* event)
{
    if (m_list->count() > 0) {
        m_list->setCurrentRow(0);
    }
    m_cancelButton->setFocus();
    QDialog::showEvent(event);
}
