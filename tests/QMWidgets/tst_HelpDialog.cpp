#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QMWidgets/HelpDialog.h>
#include <QMWidgets/HelpViewArea.h>

using QMWidgets::App;
using QMWidgets::HelpDialog;
using QMWidgets::HelpViewArea;

namespace
{

const QString kNever = QStringLiteral("NeverShowItAgain");

QList<QPushButton*> numbersOf(const QWidget& widget)
{
    return widget.findChildren<QPushButton*>(QStringLiteral("HelpSlideButton"));
}

/// Which of the slides are shown: there should be one.
QList<int> shown(const QWidget& widget)
{
    QList<int> places;
    const QList<QPushButton*> numbers = numbersOf(widget);
    for (int i = 0; i < numbers.size(); ++i) {
        if (numbers.at(i)->isChecked()) {
            places += i;
        }
    }
    return places;
}

bool runs(const QWidget& widget)
{
    return widget.findChild<QTimer*>()->isActive();
}

} // namespace

class tst_HelpDialog : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { App::app()->setSettingsValue(kNever, false); }

    void goesRoundUntilANumberIsClicked()
    {
        HelpDialog dialog(nullptr);
        auto* const area = dialog.findChild<HelpViewArea*>();
        area->slotShowNextSlide(); // no slide yet
        for (int i = 0; i < 3; ++i) {
            dialog.addSlide(QStringLiteral("missing%1.jpeg").arg(i));
        }
        const QList<QPushButton*> numbers = numbersOf(dialog);
        dialog.show();
        for (const int place : {0, 1, 2, 0, 1}) {
            QCOMPARE(shown(dialog), QList<int>{place});
            QVERIFY(runs(dialog));
            area->slotShowNextSlide();
        }
        numbers.at(0)->click();
        QVERIFY(!runs(dialog));
        QCOMPARE(shown(dialog), QList<int>{0});
        dialog.hide();
        dialog.show();
        QVERIFY(runs(dialog));
    }

    void theUserTurnsItOff()
    {
        HelpDialog dialog(nullptr);
        dialog.show();
        QPushButton* const never = buttonOf(&dialog, QStringLiteral("&Never show on start"));
        QVERIFY(never->isVisible());
        never->click();
        QVERIFY(!dialog.isVisible());
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QVERIFY(App::app()->settingsValue(kNever, false).toBool());
        dialog.show();
        QVERIFY(!never->isVisible());
        App::app()->showHelpIfDue();
        QVERIFY(!App::app()->findChild<QTimer*>(QStringLiteral("HelpTimer"))->isActive());
    }

    void comesByItselfOverTheActiveWindow()
    {
        App* const app = App::app();
        app->showHelpIfDue();
        QPointer<QDialog> help;
        {
            QDialog work;
            work.show();
            QVERIFY(QTest::qWaitForWindowActive(&work));
            withModalDialog([&] { QVERIFY(QTest::qWaitFor([&] { return help; }, 30000)); },
                            [&](QDialog* dialog) {
                                help = dialog;
                                QCOMPARE(help->parentWidget(), &work);
                                QCOMPARE(help->focusWidget(), buttonOf(help, "&Close"));
                            });
        }
        QVERIFY(help);
        QCOMPARE(help->windowTitle(), QStringLiteral("Tessarin Introduction"));
        QVERIFY(!app->findChild<QTimer*>(QStringLiteral("HelpTimer"))->isActive());
        // It is one dialog for the whole run, and once at a time.
        withModalDialog([app] { app->slotHelp(); },
                        [&](QDialog* dialog) {
                            app->slotHelp();
                            QCOMPARE(dialog, help);
                            QCOMPARE(help->focusWidget(), buttonOf(help, "&Close"));
                        });
    }
};

TESSARIN_TEST(tst_HelpDialog);
#include "tst_HelpDialog.moc"
