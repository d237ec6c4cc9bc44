#include "SocialColumn.h"

#include "App.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

QPushButton* makeButton(const QString& network, const QString& kind, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(network + kind + QStringLiteral("Button"));
    // The button is all picture; this is what a screen reader has to go by.
    button->setAccessibleName(network);
    button->setFlat(true);
    button->setFixedSize(190, 35);
    button->setCheckable(true);
    return button;
}

} // namespace

SocialColumn makeSocialColumn(const QString& kind, QWidget* parent)
{
    SocialColumn column;
    column.faceBook = makeButton(QStringLiteral("FaceBook"), kind, parent);
    column.twitter = makeButton(QStringLiteral("Twitter"), kind, parent);
    column.vKontakte = makeButton(QStringLiteral("VKontakte"), kind, parent);
    column.email = makeButton(QStringLiteral("Email"), kind, parent);
    const App* const app = App::app();
    column.faceBook->setHidden(app->facebookUrl().isEmpty());
    column.twitter->setHidden(app->twitterUrl().isEmpty());
    column.vKontakte->setHidden(app->vkontakteUrl().isEmpty());

    column.layout = new QVBoxLayout;
    column.layout->setContentsMargins(10, 10, 10, 10);
    column.layout->setSpacing(6);
    for (QPushButton* const button :
         {column.faceBook, column.twitter, column.vKontakte, column.email}) {
        column.layout->addWidget(button);
    }
    return column;
}

} // namespace QMWidgets
