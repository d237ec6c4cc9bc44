#include "support/TestMain.h"

#include <QLabel>
#include <QLocale>
#include <QMWidgets/App.h>
#include <QMWidgets/BuildDate.h>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>

using QMWidgets::App;

class tst_App : public QObject
{
    Q_OBJECT

private slots:
    void settingsLieInTheApplicationsGroup()
    {
        App* app = App::app();
        const QString key = QStringLiteral("some/number");
        QCOMPARE(app->settingsValue(key, 7).toInt(), 7);
        app->setSettingsValue(key, 8);
        QCOMPARE(app->settingsValue(key, 7).toInt(), 8);
        const QSettings store(QStringLiteral("Corvane"), QStringLiteral("Tessarin"));
        QCOMPARE(store.value(QStringLiteral("Tessarin/some/number")).toInt(), 8);
    }

    void readsTheCompilersDate_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QDate>("date");
        QTest::newRow("two digits") << "Oct 18 2014" << QDate(2014, 10, 18);
        QTest::newRow("two blanks") << "Jan  1 2024" << QDate(2024, 1, 1);
        QTest::newRow("last month") << "Dec 31 1999" << QDate(1999, 12, 31);
        QTest::newRow("other case") << "oct 18 2014" << QDate();
        QTest::newRow("no such day") << "Feb 30 2014" << QDate();
        QTest::newRow("empty") << "" << QDate();
    }

    void readsTheCompilersDate()
    {
        QFETCH(QString, text);
        QFETCH(QDate, date);
        const QLocale before;
        QLocale::setDefault(QLocale(QLocale::German));
        const QDate read = QMWidgets::parseBuildDate(text);
        QLocale::setDefault(before);
        QCOMPARE(read, date);
        QVERIFY(App::app()->buildDate().isValid());
    }

    void tellsOfEvents()
    {
        App* app = App::app();
        QSignalSpy presses(app, &App::mouseButtonPress);
        QSignalSpy activated(app, &App::applicationActivated);
        QSignalSpy deactivated(app, &App::applicationDeactivated);

        QEvent activate(QEvent::ApplicationActivate);
        QCoreApplication::sendEvent(app, &activate);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(deactivated.count(), 0);
        QEvent deactivate(QEvent::ApplicationDeactivate);
        QCoreApplication::sendEvent(app, &deactivate);
        QCOMPARE(activated.count(), 1);
        QCOMPARE(deactivated.count(), 1);

        QPushButton button;
        QSignalSpy reached(&button, &QPushButton::pressed);
        QTest::keyClick(&button, Qt::Key_A);
        QCOMPARE(presses.count(), 0);
        QTest::mousePress(&button, Qt::LeftButton);
        QVERIFY(presses.count() > 0);
        QCOMPARE(reached.count(), 1);
        QTest::mouseRelease(&button, Qt::LeftButton);
    }

    void veilsTheMainWindow()
    {
        App* app = App::app();
        QWidget window;
        window.resize(200, 100);
        window.show();
        app->setMainWidget(&window);
        const auto* veil = window.findChild<QWidget*>(QStringLiteral("MainWidgetBlender"));
        QVERIFY(veil);
        QVERIFY(veil->isHidden());

        QWidget panel(&window);
        panel.show();
        app->slotSetBlendMainWidget(true);
        QVERIFY(veil->isVisible());
        QCOMPARE(veil->geometry(), window.rect());
        QCOMPARE(static_cast<const QObject*>(veil), window.children().last());
        app->slotSetBlendMainWidget(false);
        QVERIFY(veil->isHidden());

        QWidget other;
        other.show();
        QApplication::setActiveWindow(&other);
        app->slotFocusChanged(nullptr, nullptr);
        QVERIFY(veil->isVisible());
        QApplication::setActiveWindow(&window);
        app->slotFocusChanged(nullptr, nullptr);
        QVERIFY(veil->isHidden());
    }

    void outlivesTheMainWindow()
    {
        App* app = App::app();
        {
            QWidget window;
            app->setMainWidget(&window);
            QCOMPARE(app->mainWidget(), &window);
            app->setMainWidget(&window);
            QCOMPARE(window.findChildren<QLabel*>().count(), 1);
        }
        QVERIFY(!app->mainWidget());
        app->slotSetBlendMainWidget(true);
        app->slotFocusChanged(nullptr, nullptr);
    }
};

TESSARIN_TEST(tst_App);
#include "tst_App.moc"
