#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QMWidgets/App.h>
#include <QMWidgets/HelpDialog.h>
#include <QMWidgets/HelpDisplay.h>
#include <QMWidgets/HelpViewArea.h>
#include <QSignalSpy>
#include <QTemporaryDir>

using QMWidgets::App;
using QMWidgets::HelpDialog;
using QMWidgets::HelpDisplay;
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
        QVERIFY(shown(dialog).isEmpty());
        const QList<QPushButton*> numbers = numbersOf(dialog);
        QCOMPARE(numbers.at(1)->text().toInt(), numbers.at(0)->text().toInt() + 1);

        dialog.show();
        for (const int place : {0, 1, 2, 0, 1}) {
            QCOMPARE(shown(dialog), QList<int>{place});
            QVERIFY(runs(dialog));
            area->slotShowNextSlide();
        }
        numbers.at(0)->click();
        QVERIFY(!runs(dialog));
        QCOMPARE(shown(dialog), QList<int>{0});
        numbers.at(2)->click();
        dialog.hide();
        dialog.show();
        QVERIFY(runs(dialog));
        QCOMPARE(shown(dialog), QList<int>{2});
        dialog.hide();
        QVERIFY(!runs(dialog));
    }

    void paintsThePictureInTheMiddleOfBlack()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("red.png"));
        QImage picture(30, 10, QImage::Format_RGB32);
        picture.fill(Qt::red);
        QVERIFY(picture.save(path));

        HelpDisplay display;
        display.resize(90, 60);
        const auto colours = [&display] {
            const QImage image = display.grab().toImage();
            const double ratio = image.devicePixelRatio();
            QList<QColor> at;
            for (const QPoint& place :
                 {QPoint(0, 0), QPoint(45, 14), QPoint(0, 15), QPoint(89, 44)}) {
                at.append(image.pixelColor((QPointF(place) * ratio).toPoint()));
            }
            return at;
        };
        const QColor black(Qt::black);
        const QColor red(Qt::red);
        QVERIFY(!colours().contains(black)); // nothing is painted without a path
        display.setSlide(path);
        QCOMPARE(colours(), QList<QColor>({black, black, red, red}));
        display.setSlide(folder.filePath(QStringLiteral("missing.png")));
        QCOMPARE(colours(), QList<QColor>({black, black, black, black}));
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
        buttonOf(&dialog, QStringLiteral("&Close"))->click();
        QCOMPARE(dialog.result(), int(QDialog::Rejected));

        App::app()->showHelpIfDue();
        QVERIFY(!App::app()->findChild<QTimer*>(QStringLiteral("HelpTimer"))->isActive());
    }

    void comesByItselfWhenTheUserIsFree()
    {
        App* const app = App::app();
        auto* const timer = app->findChild<QTimer*>(QStringLiteral("HelpTimer"));
        QSignalSpy timeouts(timer, &QTimer::timeout);
        app->showHelpIfDue();
        QDialog work;
        withModalDialog([&work] { work.exec(); },
                        [&](QDialog*) {
                            // The user's own dialog stays on top, though the help is due twice.
                            QVERIFY(QTest::qWaitFor([&] { return timeouts.size() > 1; }, 30000));
                            QCOMPARE(QApplication::activeModalWidget(), &work);
                        });
        QDialog* help = nullptr;
        withModalDialog([&] { QVERIFY(QTest::qWaitFor([&] { return help; }, 30000)); },
                        [&](QDialog* dialog) { help = dialog; });
        QCOMPARE(help->windowTitle(), QStringLiteral("Tessarin Introduction"));
        QVERIFY(!timer->isActive());
        // It is one dialog for the whole run, and once at a time.
        withModalDialog([app] { app->slotHelp(); },
                        [&](QDialog* dialog) {
                            app->slotHelp();
                            QCOMPARE(dialog, help);
                        });
    }
};

TESSARIN_TEST(tst_HelpDialog);
#include "tst_HelpDialog.moc"
