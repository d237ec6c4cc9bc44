#include "support/TestMain.h"

#include <QDate>
#include <QLabel>
#include <QMWidgets/AboutDialog.h>
#include <QMWidgets/MakerSite.h>
#include <QPushButton>
#include <QTextBrowser>

using QMWidgets::AboutDialog;

class tst_AboutDialog : public QObject
{
    Q_OBJECT

private slots:
    void tellsTheBuild()
    {
        const QString site = QMWidgets::MakerSite::home();
        const QString text = AboutDialog::infoText(QDate(2014, 3, 2), false);
        QVERIFY(text.contains(QLatin1String("Tessarin v")));
        QVERIFY(text.contains(QLatin1String(" Build: 02.03.2014<BR>")));
        QVERIFY(text.contains(QLatin1String("2014 Corvane<BR>") + site + QLatin1String("<BR>")));
        QVERIFY(AboutDialog::infoText(QDate(2014, 3, 2), true)
                    .contains(QStringLiteral("<A HREF=\"%1\">%1</A><BR>").arg(site)));
    }

    void changesBetweenLogoAndNoticesInPlace()
    {
        AboutDialog dialog(nullptr);
        dialog.show();
        const QSize size = dialog.size();
        auto* const logo = dialog.findChild<QLabel*>(QStringLiteral("LogoLabel"));
        auto* const notices = dialog.findChild<QTextBrowser*>();
        const auto check = [&](bool showsLogo, const char* caption) {
            QCoreApplication::processEvents();
            const QPushButton* const button = dialog.findChildren<QPushButton*>().at(0);
            QCOMPARE(logo->isHidden(), !showsLogo);
            QCOMPARE(notices->isHidden(), showsLogo);
            QCOMPARE(button->text(), QLatin1String(caption));
            QCOMPARE(dialog.size(), size);
        };
        check(true, "&Legal Notices");
        dialog.slotLegalNoticesClicked();
        check(false, "&Hide");
        QVERIFY(notices->toPlainText().contains(QLatin1String("Qt 5 Framework")));
        dialog.slotLegalNoticesClicked();
        check(true, "&Legal Notices");
        dialog.slotLegalNoticesClicked();
        dialog.slotOkClicked();
        QVERIFY(!dialog.isVisible());
        check(true, "&Legal Notices");
    }
};

TESSARIN_TEST(tst_AboutDialog);
#include "tst_AboutDialog.moc"
