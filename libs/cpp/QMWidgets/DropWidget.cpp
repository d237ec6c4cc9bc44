#include "DropWidget.h"

#include "DropVeil.h"
#include "FileDialog.h"

#include <QDropEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMWidgets
{

DropWidget::DropWidget(QWidget* parent)
    : Label(parent),
      m_dropVeil(new DropVeil(this))
{
    setAcceptDrops(true);
    setPixmap(QPixmap(QStringLiteral(":/droparea.png")));
    setObjectName(QStringLiteral("DropArea"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setText(tr("<H1>Drop the photos here</H1>"));

    m_openButton = new QPushButton(tr("Click to open the photos"), this);
    m_openButton->setObjectName(QStringLiteral("PushButton"));
    m_openButton->setIcon(QIcon(QStringLiteral(":/openfiles.png")));
    m_openButton->setFixedHeight(32);
    connect(m_openButton, &QPushButton::clicked, this, &DropWidget::slotOpenClicked);

    auto* column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(m_openButton);
    auto* row = new QHBoxLayout(this);
    row->addLayout(column);
}

void DropWidget::slotOpenClicked()
{
    const QStringList paths = FileDialog::getOpenFileNames(this, tr("Open the photos"));
    if (paths.isEmpty()) {
        return;
    }
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    handOver(urls);
}

void DropWidget::dragEnterEvent(QDragEnterEvent* event)
{
    m_dropVeil->enter(event);
    Label::dragEnterEvent(event);
}

void DropWidget::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_dropVeil->leave();
    Label::dragLeaveEvent(event);
}

void DropWidget::dropEvent(QDropEvent* event)
{
    const QList<QUrl> urls = m_dropVeil->take(event);
    Label::dropEvent(event);
    handOver(urls);
}

void DropWidget::handOver(const QList<QUrl>& urls)
{
    m_urls = urls;
    // Whoever takes the photos may let events through before this window is gone: no second list
    // comes in between.
    setEnabled(false);
    emit dropped(m_urls);
    hide();
    setEnabled(true);
}

} // namespace QMWidgets
