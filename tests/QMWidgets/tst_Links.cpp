#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QMWidgets/App.h>
#include <QMWidgets/MailUrl.h>
#include <QMWidgets/MakerSite.h>
#include <QUrlQuery>

using QMWidgets::App;
namespace MakerSite = QMWidgets::MakerSite;

namespace
{

using Slot = void (App::*)();

struct Link {
    Slot open;
    const char* button; // pressed in the dialog that comes; null if none does
    QString address;    // as people read it; empty if none is opened
};

void checkLinks(const QList<Link>& links)
{
    App* const app = App::app();
    UrlCatcher catcher;
    for (const Link& link : links) {
        withModalDialog([&] { (app->*link.open)(); },
                        [&](QDialog* dialog) {
                            auto* const button =
                                dialog->findChild<QPushButton*>(QLatin1String(link.button));
                            QTest::mouseClick(button, Qt::LeftButton);
                        });
        QStringList opened;
        for (const QUrl& url : catcher.take()) {
            opened += QUrl::fromPercentEncoding(url.toEncoded());
        }
        QCOMPARE(opened.join(QLatin1Char(' ')), link.address);
    }
}

} // namespace

class tst_Links : public QObject
{
    Q_OBJECT

private slots:
    void pagesFollowTheApplicationsName()
    {
        App* const app = App::app();
        const QString home = MakerSite::home();
        const QString page = home + QStringLiteral("/apps/tessarin");
        const QString mail = QStringLiteral("mailto:?subject=Check out the cool %1 app!"
                                            "&body=Hi, check out this cool %1 app - available "
                                            "in the App Stores: %2");
        const QString name = QStringLiteral("Tessarin");
        checkLinks({{&App::slotSupportPage, nullptr, home},
                    {&App::slotTellFriend, nullptr, mail.arg(name, page + ".html")}});
        app->setupWebLinks();
        app->setPromotedAppUrl(page + QStringLiteral("/promoted"));
        const QString join = home + "/apps/appscontrol/index.php?app=Tessarin&social=";
        checkLinks({{&App::slotSupportPage, nullptr, page},
                    {&App::slotTellFriend, nullptr, mail.arg(name, page)},
                    {&App::slotShowMoreApps, nullptr, home + "/apps"},
                    {&App::slotGoToPromotedApp, nullptr, page + "/promoted"},
                    {&App::slotRateApp, nullptr, QString()}, // there is no page for that
                    {&App::slotShareApp, "FaceBookShareButton", page + "/facebook.php"},
                    {&App::slotShareApp, "TwitterShareButton", page + "/twitter.php"},
                    {&App::slotShareApp, "VKontakteShareButton", page + "/vkontakte.php"},
                    {&App::slotShareApp, "EmailShareButton", mail.arg(name, page)},
                    {&App::slotJoin, "FaceBookJoinButton", join + "facebook"},
                    {&App::slotJoin, "TwitterJoinButton", join + "twitter"},
                    {&App::slotJoin, "VKontakteJoinButton", join + "vkontakte"},
                    {&App::slotJoin, "EmailJoinButton", join + "email"}});
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
};

TESSARIN_TEST(tst_Links);
#include "tst_Links.moc"
