#include "PromoMenuBar.h"

#include "App.h"
#include "AppButton.h"
#include "FollowLanguage.h"
#include "OpenAddress.h"

#include <QAction>
#include <QHBoxLayout>
#include <QMenu>
#include <QSignalMapper>
#include <QUrl>

namespace QMWidgets
{

namespace
{

template <class Button>
Button* imageButton(const QString& objectName, const char* toolTip, QWidget* parent)
{
    auto* button = new Button(parent);
    button->setObjectName(objectName);
    button->setFlat(true);
    followLanguage(button, [button, toolTip] {
        button->setToolTip(PromoMenuBar::tr(toolTip));
        // The button is all picture; this is what a screen reader has to go by.
        button->setAccessibleName(PromoMenuBar::tr(toolTip));
    });
    button->setFixedSize(60, 32);
    return button;
}

} // namespace

PromoMenuBar::PromoMenuBar(QWidget* parent)
    : QFrame(parent)
{
    setObjectName(QStringLiteral("MenuBar"));
    m_urlMapper = new QSignalMapper(this);
    connect(m_urlMapper, &QSignalMapper::mappedString, this, &PromoMenuBar::slotCallUrl);

    m_introButton =
        imageButton<QPushButton>(QStringLiteral("IntroButton"), QT_TR_NOOP("Introduction"), this);
    m_moreButton = imageButton<QPushButton>(QStringLiteral("MoreButton"), QT_TR_NOOP("More"), this);
    m_rateButton =
        imageButton<QPushButton>(QStringLiteral("RateButton"), QT_TR_NOOP("Rate App"), this);
    m_moreAppsButton =
        imageButton<QPushButton>(QStringLiteral("MoreAppsButton"), QT_TR_NOOP("More Apps"), this);
    m_shareButton =
        imageButton<QPushButton>(QStringLiteral("ShareButton"), QT_TR_NOOP("Share"), this);
    m_joinButton =
        imageButton<QPushButton>(QStringLiteral("JoinButton"), QT_TR_NOOP("Join Us"), this);
    m_appButton = imageButton<AppButton>(QStringLiteral("AppButton"), QT_TR_NOOP("App Menu"), this);

    m_moreMenu = new QMenu(m_moreButton);
    m_moreButton->setMenu(m_moreMenu);

    m_moreAppsButton->hide();
    m_rateButton->hide();

    App* app = App::app();
    connect(m_appButton, &AppButton::quitPressed, app, &App::quit);
    connect(m_rateButton, &QPushButton::clicked, app, &App::slotRateApp);
    connect(m_introButton, &QPushButton::clicked, app, &App::slotHelp);
    connect(m_moreAppsButton, &QPushButton::clicked, app, &App::slotShowMoreApps);
    connect(m_shareButton, &QPushButton::clicked, app, &App::slotShareApp);
    connect(m_joinButton, &QPushButton::clicked, app, &App::slotJoin);

    layOut();
}

void PromoMenuBar::layOut()
{
    m_centerBox = new QHBoxLayout;
    m_centerBox->setContentsMargins(0, 0, 0, 0);
    m_centerBox->setSpacing(0);
    m_rightBox = new QHBoxLayout;

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(5, 5, 5, 5);
    row->setSpacing(0);
    row->addWidget(m_moreButton);
    row->addStretch(1);
    row->addLayout(m_centerBox);
    row->addStretch(1);
    row->addLayout(m_rightBox);
    row->addWidget(m_introButton);
    row->addWidget(m_shareButton);
    row->addWidget(m_joinButton);
    row->addWidget(m_moreAppsButton);
    row->addWidget(m_rateButton);
    row->addWidget(m_appButton);
}

void PromoMenuBar::addCatalogueEntry(const QPixmap& icon, const QString& text, const QString& url)
{
    if (url.isEmpty()) {
        return;
    }
    auto* action = new QAction(QIcon(icon), text, this);
    connect(action, &QAction::triggered, m_urlMapper, qOverload<>(&QSignalMapper::map));
    m_urlMapper->setMapping(action, url);
    m_moreMenu->addAction(action);
}

void PromoMenuBar::addCatalogueSeparator()
{
    m_moreMenu->addSeparator();
}

void PromoMenuBar::addMoreAppsEntry()
{
    m_moreMenu->addSeparator();
    QAction* action = m_moreMenu->addAction(QIcon(QStringLiteral(":/moreappsicon.png")), QString());
    followLanguage(m_moreMenu, [action] { action->setText(tr("More Apps")); });
    connect(action, &QAction::triggered, App::app(), &App::slotShowMoreApps);
    m_moreMenu->addSeparator();
}

void PromoMenuBar::addRightWidget(QWidget* widget)
{
    m_rightBox->addWidget(widget);
}

void PromoMenuBar::addCenterWidget(QWidget* widget)
{
    m_centerBox->addWidget(widget);
}

void PromoMenuBar::setMoreAppsButtonHidden()
{
    m_moreAppsButton->hide();
}

void PromoMenuBar::slotCallUrl(const QString& url)
{
    openAddress(QUrl(url));
}

} // namespace QMWidgets
