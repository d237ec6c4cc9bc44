#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QMWidgets/App.h>
#include <QMWidgets/JoinWidget.h>
#include <QMWidgets/MailUrl.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/OpenInFileManager.h>
#include <QMWidgets/TellWidget.h>
#include <QPushButton>
#include <QUrlQuery>

using QMWidgets::App;
using QMWidgets::JoinWidget;
using QMWidgets::TellWidget;
namespace MakerSite = QMWidgets::MakerSite;

namespace
{

/// The one address that was opened, as people read it.
QString readable(const QList<QUrl>& urls)
{
    return urls.count() == 1 ? QUrl::fromPercentEncoding(urls.first().toEncoded())
                             : QStringLiteral("%1 addresses").arg(urls.count());
}

} // namespace

class tst_AppLinks : public QObject
{
    Q_OBJECT

private slots:
    void pagesFollowTheApplicationsName()
    {
        App* app = App::app();
        UrlCatcher catcher;
        QWidget parent;
        const QString friendMail = QStringLiteral(
            "mailto:?subject=Check out the cool Tessarin app!&body=Hi, check out this "
            "cool Tessarin app - available in the App Stores: ");
        const QString page = MakerSite::home() + QStringLiteral("/apps/tessarin");

        app->slotSupportPage();
        QCOMPARE(readable(catcher.take()), MakerSite::home());
        app->slotTellFriend();
        QCOMPARE(readable(catcher.take()), friendMail + page + QStringLiteral(".html"));

        // Without addresses there is nothing but the mail to share by.
        for (const QWidget* widget :
             std::initializer_list<QWidget*>{new TellWidget(&parent), new JoinWidget(&parent)}) {
            for (const QPushButton* button : widget->findChildren<QPushButton*>()) {
                QCOMPARE(button->isHidden(),
                         !button->objectName().startsWith(QLatin1String("Email")));
            }
        }

        app->setupWebLinks();
        QCOMPARE(app->facebookUrl(), page + QStringLiteral("/facebook.php"));
        QCOMPARE(app->twitterUrl(), page + QStringLiteral("/twitter.php"));
        QCOMPARE(app->vkontakteUrl(), page + QStringLiteral("/vkontakte.php"));
        app->slotSupportPage();
        QCOMPARE(readable(catcher.take()), page);
        app->slotTellFriend();
        QCOMPARE(readable(catcher.take()), friendMail + page);

        const QString name = QCoreApplication::applicationName();
        QCoreApplication::setApplicationName(QStringLiteral("A&B"));
        app->slotTellFriend();
        QCoreApplication::setApplicationName(name);
        QCOMPARE(readable(catcher.take()),
                 QString(friendMail).replace(name, QStringLiteral("A&B")) + page);
    }

    void opensPages()
    {
        App* app = App::app();
        UrlCatcher catcher;
        app->slotShowMoreApps();
        QCOMPARE(readable(catcher.take()), MakerSite::home() + QStringLiteral("/apps"));
        app->setPromotedAppUrl(MakerSite::page(QStringLiteral("/apps/tessarin/")));
        app->slotGoToPromotedApp();
        QCOMPARE(readable(catcher.take()), MakerSite::home() + QStringLiteral("/apps/tessarin/"));
        // There is no page to rate the application on.
        app->slotRateApp();
        QVERIFY(catcher.take().isEmpty());
    }

    void writesToTheSupport()
    {
        const QString version = QCoreApplication::applicationVersion();
        QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));
        App* app = App::app();
        UrlCatcher catcher;
        app->slotContactUs();
        QCoreApplication::setApplicationVersion(version);
        QCOMPARE(readable(catcher.take()),
                 QStringLiteral("mailto:%1?subject=Contact (Tessarin 1.0) "
                                "%2 en I&body=")
                     .arg(MakerSite::supportMail(), app->systemName()));
    }

    void mailFieldsStayWhole()
    {
        const QString subject = QStringLiteral("50% of A&B #1 = \u00fc?");
        const QString body = QStringLiteral("a+b\nc");
        const QUrl url = QMWidgets::mailUrl(QStringLiteral("x@corvane.example"), subject, body);
        QVERIFY(url.isValid());
        QVERIFY(!url.hasFragment());
        QCOMPARE(url.path(), QStringLiteral("x@corvane.example"));
        const QUrlQuery query(url);
        QCOMPARE(query.queryItems().count(), 2);
        QCOMPARE(query.queryItemValue(QStringLiteral("subject"), QUrl::FullyDecoded), subject);
        QCOMPARE(query.queryItemValue(QStringLiteral("body"), QUrl::FullyDecoded), body);
    }

    void showsTheFolderItself()
    {
        UrlCatcher catcher;
        QMWidgets::openInFileManager(QStringLiteral("/some//where/100% #1/"));
        const QList<QUrl> urls = catcher.take();
        QCOMPARE(urls.count(), 1);
        QCOMPARE(urls.first().toLocalFile(), QStringLiteral("/some/where/100% #1"));
    }
};

TESSARIN_TEST(tst_AppLinks);
#include "tst_AppLinks.moc"
