#include "TellWidget.h"

#include "App.h"
#include "SocialColumn.h"

#include <QDesktopServices>
#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

void openPage(const QString& address)
{
    static_cast<void>(QDesktopServices::openUrl(QUrl(address)));
}

} // namespace

TellWidget::TellWidget(QWidget* parent)
    : QFrame(parent)
{
    const SocialColumn column = makeSocialColumn(QStringLiteral("Share"), this);
    setLayout(column.layout);
    connect(column.faceBook, &QPushButton::clicked, this, &TellWidget::slotFaceBookClicked);
    connect(column.twitter, &QPushButton::clicked, this, &TellWidget::slotTwitterClicked);
    connect(column.vKontakte, &QPushButton::clicked, this, &TellWidget::slotVKontakteClicked);
    connect(column.email, &QPushButton::clicked, this, &TellWidget::slotEmailClicked);
}

void TellWidget::slotFaceBookClicked()
{
    openPage(App::app()->facebookUrl());
}

void TellWidget::slotTwitterClicked()
{
    openPage(App::app()->twitterUrl());
}

void TellWidget::slotVKontakteClicked()
{
    openPage(App::app()->vkontakteUrl());
}

void TellWidget::slotEmailClicked()
{
    App::app()->slotTellFriend();
}

} // namespace QMWidgets
