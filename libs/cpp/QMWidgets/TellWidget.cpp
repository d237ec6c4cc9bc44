#include "TellWidget.h"

#include "App.h"
#include "OpenAddress.h"
#include "SocialColumn.h"

#include <QPushButton>
#include <QUrl>
#include <QVBoxLayout>

namespace QMWidgets
{

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
    openAddress(QUrl(App::app()->facebookUrl()));
}

void TellWidget::slotTwitterClicked()
{
    openAddress(QUrl(App::app()->twitterUrl()));
}

void TellWidget::slotVKontakteClicked()
{
    openAddress(QUrl(App::app()->vkontakteUrl()));
}

void TellWidget::slotEmailClicked()
{
    App::app()->slotTellFriend();
}

} // namespace QMWidgets
