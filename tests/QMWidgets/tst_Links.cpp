#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QMWidgets/App.h>
#include <QMWidgets/JoinWidget.h>
#include <QMWidgets/MailUrl.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/OpenInFileManager.h>
#include <QMWidgets/TellWidget.h>
#include <QUrlQuery>

using QMWidgets::App;
using QMWidgets::JoinWidget;
using QMWidgets::TellWidget;
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
        // Without addresses there is nothing but the mail to share by.
        QWidget parent;
        new TellWidget(&parent);
        new JoinWidget(&parent);
        for (const QPushButton* button : parent.findChildren<QPushButton*>()) {
            const bool isMail = button->objectName().startsWith(QLatin1String("Email"));
            QCOMPARE(button->isHidden(), !isMail);
        }

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

        QCoreApplication::setApplicationName(QStringLiteral("A&B"));
        checkLinks({{&App::slotTellFriend, nullptr, mail.arg(QStringLiteral("A&B"), page)}});
        QCoreApplication::setApplicationName(name);
    }

    void sharingStaysOpenUntilEnter()
    {
        UrlCatcher catcher;
        int result = -1;
        withModalDialog([] { App::app()->slotShareApp(); },
                        [&](QDialog* dialog) {
                            dialog->findChild<QPushButton*>("EmailShareButton")->click();
                            QVERIFY(dialog->isVisible());
                            connect(dialog, &QDialog::finished, [&](int r) { result = r; });
                            // Enter is the button that closes, not the first page's.
                            QTest::keyClick(dialog, Qt::Key_Return);
                        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(catcher.take().count(), 1);
    }

    void writesToTheSupport()
    {
        const QString version = QCoreApplication::applicationVersion();
        QCoreApplication::setApplicationVersion(QStringLiteral("1.0"));
        checkLinks({{&App::slotContactUs, nullptr,
                     QStringLiteral("mailto:%1?subject=Contact (Tessarin 1.0) %2 en I&body=")
                         .arg(MakerSite::supportMail(), App::app()->systemName())}});
        QCoreApplication::setApplicationVersion(version);
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
        const QUrl folder = QUrl::fromLocalFile(QStringLiteral("/some/where/100% #1"));
        QCOMPARE(catcher.take(), QList<QUrl>({folder}));
    }
};

TESSARIN_TEST(tst_Links);
#include "tst_Links.moc"
