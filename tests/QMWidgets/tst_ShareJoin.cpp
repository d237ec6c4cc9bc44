#include "support/ModalDialog.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QMWidgets/App.h>
#include <QMWidgets/JoinWidget.h>
#include <QMWidgets/MakerSite.h>
#include <QMWidgets/TellWidget.h>

using QMWidgets::App;

class tst_ShareJoin : public QObject
{
    Q_OBJECT

private slots:
    void buttonsOpenTheirAddress_data()
    {
        QTest::addColumn<QString>("button");
        QTest::addColumn<QString>("address");
        const QString share = QStringLiteral("/apps/tessarin/");
        const QString join = QStringLiteral("/apps/appscontrol/index.php?app=Tessarin&social=");
        for (const char* network : {"FaceBook", "Twitter", "VKontakte", "Email"}) {
            const QString name = QLatin1String(network);
            QTest::newRow(network) << name + QStringLiteral("JoinButton") << join + name.toLower();
            if (name != QLatin1String("Email")) {
                QTest::addRow("share %s", network)
                    << name + QStringLiteral("ShareButton") << share + name.toLower() + ".php";
            }
        }
    }
    void buttonsOpenTheirAddress()
    {
        QFETCH(QString, button);
        QFETCH(QString, address);
        App* const app = App::app();
        app->setupWebLinks();
        UrlCatcher catcher;
        const auto press = [&button](QDialog* dialog) {
            QTest::mouseClick(dialog->findChild<QPushButton*>(button), Qt::LeftButton);
        };
        if (button.contains(QLatin1String("Share"))) {
            withModalDialog([app] { app->slotShareApp(); }, press);
        } else {
            withModalDialog([app] { app->slotJoin(); }, press);
        }
        QCOMPARE(catcher.take(), QList<QUrl>({QUrl(QMWidgets::MakerSite::page(address))}));
    }

    void sharesByMailAndStaysOpen()
    {
        App* const app = App::app();
        UrlCatcher catcher;
        int result = -1;
        withModalDialog([app] { app->slotShareApp(); },
                        [&](QDialog* dialog) {
                            auto* email = dialog->findChild<QPushButton*>("EmailShareButton");
                            email->click();
                            QVERIFY(dialog->isVisible());
                            QVERIFY(email->isChecked());
                            connect(dialog, &QDialog::finished, [&](int r) { result = r; });
                            // Enter is the button that closes, not the first page's.
                            QTest::keyClick(dialog, Qt::Key_Return);
                        });
        QCOMPARE(result, int(QDialog::Accepted));
        QCOMPARE(catcher.take().value(0).scheme(), QStringLiteral("mailto"));
    }
};

TESSARIN_TEST(tst_ShareJoin);
#include "tst_ShareJoin.moc"
