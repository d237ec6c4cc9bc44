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

QList<QPushButton*> numbersOf(const QWidget* widget)
{
    return widget->findChildren<QPushButton*>(QStringLiteral("HelpSlideButton"));
}

/// The place of the slide that is shown, from 0; -1 for none.
int shown(const QWidget* widget)
{
    int place = -1;
    const QList<QPushButton*> numbers = numbersOf(widget);
    for (int i = 0; i < numbers.size(); ++i) {
        place = numbers.at(i)->isChecked() ? i : place;
    }
    return place;
}

bool runs(const QWidget* widget)
{
    return widget->findChild<QTimer*>()->isActive();
}

void addSlides(HelpDialog* dialog)
{
    for (int i = 0; i < 3; ++i) {
        dialog->addSlide(QStringLiteral("missing%1.jpeg").arg(i));
    }
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
        addSlides(&dialog);
        QCOMPARE(shown(&dialog), -1);
        const QList<QPushButton*> numbers = numbersOf(&dialog);
        QCOMPARE(numbers.at(1)->text().toInt(), numbers.at(0)->text().toInt() + 1);

        dialog.show();
        for (const int place : {0, 1, 2, 0, 1}) {
            QCOMPARE(shown(&dialog), place);
            QVERIFY(runs(&dialog));
            area->slotShowNextSlide();
        }
        numbers.at(0)->click();
        QVERIFY(!runs(&dialog));
        QCOMPARE(shown(&dialog), 0);
        numbers.at(2)->click();
        dialog.hide();
        dialog.show();
        QVERIFY(runs(&dialog));
        QCOMPARE(shown(&dialog), 2);
        dialog.hide();
        QVERIFY(!runs(&dialog));
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
                 {QPoint(0, 0), QPoint(89, 59), QPoint(45, 14), QPoint(0, 15), QPoint(89, 44)}) {
                at.append(image.pixelColor((QPointF(place) * ratio).toPoint()));
            }
            return at;
        };
        const QColor black(Qt::black);
        const QColor red(Qt::red);
        QVERIFY(!colours().contains(black)); // nothing is painted without a path
        display.setSlide(path);
        QCOMPARE(colours(), QList<QColor>({black, black, black, red, red}));
        display.setSlide(folder.filePath(QStringLiteral("missing.png")));
        QCOMPARE(colours(), QList<QColor>({black, black, black, black, black}));
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
        QStringList titles;
        app->showHelpIfDue();
        QTimer looker;
        connect(&looker, &QTimer::timeout, [&] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (!dialog) {
                return;
            }
            // The dialog of the user's work is left open until the help was due twice.
            if (dialog->windowTitle() == QLatin1String("Work") && timeouts.size() < 2) {
                return;
            }
            titles.append(dialog->windowTitle());
            dialog->close();
        });
        looker.start(0);
        QDialog work;
        work.setWindowTitle(QStringLiteral("Work"));
        work.exec();
        QTRY_COMPARE_WITH_TIMEOUT(titles, QStringList({"Work", "Tessarin Introduction"}), 30000);
        QVERIFY(!timer->isActive());
    }

    void isOneDialogForTheWholeRun()
    {
        App* const app = App::app();
        QList<QDialog*> dialogs;
        for (int i = 0; i < 2; ++i) {
            withModalDialog([app] { app->slotHelp(); },
                            [&](QDialog* dialog) {
                                app->slotHelp(); // open already
                                dialogs.append(dialog);
                            });
        }
        QCOMPARE(dialogs.size(), 2);
        QCOMPARE(dialogs.at(0), dialogs.at(1));
    }
};

TESSARIN_TEST(tst_HelpDialog);
#include "tst_HelpDialog.moc"
