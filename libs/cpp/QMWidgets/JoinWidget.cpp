#include "JoinWidget.h"

#include "App.h"
#include "OpenAddress.h"
#include "SocialColumn.h"
#include <QMWidgets/MakerSite.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

QString inTag(const QString& tag, const QString& text)
{
    return QLatin1Char('<') + tag + QLatin1Char('>') + text + QLatin1String("</") + tag +
           QLatin1Char('>');
}

} // namespace

JoinWidget::JoinWidget(QWidget* parent)
    : QFrame(parent),
      m_urlTemplate(MakerSite::page(QStringLiteral("/apps/appscontrol/index.php?app=%1&social=%2")))
{
    const SocialColumn column = makeSocialColumn(QStringLiteral("Join"), this);
    connect(column.faceBook, &QPushButton::clicked, this, &JoinWidget::slotFaceBookClicked);
    connect(column.twitter, &QPushButton::clicked, this, &JoinWidget::slotTwitterClicked);
    connect(column.vKontakte, &QPushButton::clicked, this, &JoinWidget::slotVKontakteClicked);
    connect(column.email, &QPushButton::clicked, this, &JoinWidget::slotEmailClicked);

    const bool small = App::isSmallScreen();
    auto* label = new QLabel(this);
    label->setText(inTag(small ? QStringLiteral("H5") : QStringLiteral("H1"),
                         tr("Join us and stay informed<br>about our")) +
                   inTag(small ? QStringLiteral("H4") : QStringLiteral("H2"),
                         tr("   1. FREE APP Actions<br>") + tr("   2. APP Updates<br>") +
                             tr("   3. New APPs<br>") + tr("   4. Important News<br>") +
                             tr("   and more...")));

    auto* buttons = new QHBoxLayout;
    buttons->addStretch(0);
    buttons->addLayout(column.layout);
    buttons->addStretch(0);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(label);
    layout->addLayout(buttons);
}

void JoinWidget::openPage(const QString& social) const
{
    openAddress(QUrl(m_urlTemplate.arg(QCoreApplication::applicationName(), social)));
}

void JoinWidget::slotFaceBookClicked()
{
    openPage(QStringLiteral("facebook"));
}

void JoinWidget::slotTwitterClicked()
{
    openPage(QStringLiteral("twitter"));
}

void JoinWidget::slotVKontakteClicked()
{
    openPage(QStringLiteral("vkontakte"));
}

void JoinWidget::slotEmailClicked()
{
    openPage(QStringLiteral("email"));
}

} // namespace QMWidgets
