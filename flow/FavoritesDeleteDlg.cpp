#include "flow/FavoritesDeleteDlg.h"

#include <QMWidgets/ButtonRow.h>
#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/TabOrder.h>

#include <QBoxLayout>
#include <QListWidget>
#include <QPushButton>

namespace
{

QPushButton* makeButton(const QString& objectName, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setFlat(true);
    button->setObjectName(objectName);
    button->setFixedHeight(32);
    return button;
}

} // namespace

FavoritesDeleteDlg::FavoritesDeleteDlg(QWidget* parent)
    : QDialog(parent),
      m_list(new QListWidget(this)),
      m_cancelButton(makeButton(QStringLiteral("PushButton"), this))
{
    setObjectName(QStringLiteral("Dialog"));
    setMinimumSize(400, 300);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* deleteButton = makeButton(QStringLiteral("DeleteButton"), this);
    QMWidgets::followLanguage(this, [this, deleteButton] {
        setWindowTitle(tr("Delete the flow"));
        m_list->setAccessibleName(tr("Flows"));
        m_cancelButton->setText(tr("&Cancel"));
        deleteButton->setText(tr("&Delete"));
    });
    connect(m_cancelButton, &QPushButton::clicked, this, &FavoritesDeleteDlg::reject);
    connect(deleteButton, &QPushButton::clicked, this, &FavoritesDeleteDlg::accept);

    QBoxLayout* const buttons = QMWidgets::makeButtonRow();
    buttons->addWidget(deleteButton);
    buttons->addWidget(m_cancelButton);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addLayout(buttons);
    QMWidgets::tabAsLaidOut(this);
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
