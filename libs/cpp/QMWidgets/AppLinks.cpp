#include "App.h"
#include "MailUrl.h"
#include "OpenAddress.h"
#include <QMWidgets/MakerSite.h>

#include <QUrl>

namespace QMWidgets
{

namespace
{

/// "/apps/" and the application's name, as it stands in the addresses of the maker's site.
QString applicationPage()
{
    return MakerSite::page(QStringLiteral("/apps/") +
                           QCoreApplication::applicationName().toLower());
}

} // namespace

void App::setupWebLinks()
{
    const QString page = applicationPage();
    m_facebookUrl = page + QStringLiteral("/facebook.php");
    m_twitterUrl = page + QStringLiteral("/twitter.php");
    m_vkontakteUrl = page + QStringLiteral("/vkontakte.php");
    m_supportUrl = page;
}

void App::slotContactUs()
{
    const QString subject = QStringLiteral("Contact (%1 %2) %3 %4 %5")
                                .arg(applicationName(), applicationVersion(), systemName(),
                                     language(), isStoreBuild() ? QString() : QStringLiteral("I"));
    openAddress(mailUrl(MakerSite::supportMail(), subject, QString()));
}

void App::slotTellFriend()
{
    const QString page =
        m_supportUrl.isEmpty() ? applicationPage() + QStringLiteral(".html") : m_supportUrl;
    // Deliberate: the name goes into the address as it stands.
    openAddress(QUrl(QStringLiteral("mailto:?subject=Check out the cool %1 app!"
                                    "&body=Hi, check out this cool %1 app - available in the App "
                                    "Stores: %2")
                         .arg(applicationName(), page)));
}

void App::slotShowMoreApps()
{
    openAddress(QUrl(MakerSite::page(QStringLiteral("/apps"))));
}

void App::slotRateApp()
{
    openAddress(QUrl(MakerSite::ratingPage()));
}

void App::slotSupportPage()
{
    openAddress(QUrl(m_supportUrl.isEmpty() ? MakerSite::home() : m_supportUrl));
}

void App::slotGoToPromotedApp()
{
    openAddress(QUrl(m_productPage));
}

} // namespace QMWidgets
