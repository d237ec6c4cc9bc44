#include "intake/IconWidget.h"

#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "intake/ListView.h"
#include <QMWidgets/FollowLanguage.h>

#include <QVBoxLayout>

IconWidget::IconWidget(QWidget* parent)
    : QFrame(parent),
      m_view(new ListView(nullptr)),
      m_model(CommonData::instance()->model())
{
    setFixedSize(360, 360);
    m_view->setModel(m_model);
    m_view->setObjectName(QStringLiteral("CreatorIconsView"));
    QMWidgets::followLanguage(m_view, [this] { m_view->setAccessibleName(tr("Photos")); });
    connect(m_view, &ListView::currentItemChanged, this, &IconWidget::slotCurrentItem);

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_view);
}

void IconWidget::slotItemClicked(const QModelIndex& index)
{
    if (isVisible()) {
        emit itemClicked(index.row());
    }
}

void IconWidget::slotCurrentItem(const QModelIndex& current, const QModelIndex&)
{
    slotItemClicked(current);
}

void IconWidget::slotUpdateItems(const QList<QUrl>& urls)
{
    m_model->setItems(urls);
}

void IconWidget::slotSetCurrentIndex(int row)
{
    m_view->setCurrentIndex(m_model->index(row, 0, QModelIndex()));
}
