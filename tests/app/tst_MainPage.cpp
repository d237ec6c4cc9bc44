#include "app/MainPage.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTimer>

class TestMainPage : public QObject
{
    Q_OBJECT

private slots:
    void hasItsFixedSizeWithEverythingInside()
    {
        MainPage page(nullptr);
        page.slotFilesDropped({});
        QVERIFY(page.isVisible());
        QCOMPARE(page.size(), QSize(735, 795));
        QCOMPARE(page.minimumSize(), page.maximumSize());
        for (QWidget* widget : page.findChildren<QWidget*>()) {
            if (widget->isVisible() && !widget->isWindow()) {
                const QRect place(widget->mapTo(&page, QPoint(0, 0)), widget->size());
                QVERIFY2(page.rect().contains(place),
                         qPrintable(QLatin1String(widget->metaObject()->className()) +
                                    QLatin1Char(' ') + widget->objectName()));
            }
        }
    }

    void theSettingsButtonOpensTheSettings()
    {
        MainPage page(nullptr);
        page.slotFilesDropped({});
        QString title;
        QTimer::singleShot(0, &page, [&title] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                title = dialog->windowTitle();
                dialog->reject();
            }
        });
        page.findChild<QPushButton*>(QStringLiteral("SettingsButton"))->click();
        QCOMPARE(title, QStringLiteral("Tessarin Settings"));
    }

    void buttonsWithoutTextHaveAName()
    {
        MainPage page(nullptr);
        for (QAbstractButton* button : page.findChildren<QAbstractButton*>()) {
            // The tab bar's own scroll buttons are the toolkit's.
            if (button->text().isEmpty() && !button->inherits("QToolButton")) {
                QVERIFY2(!button->accessibleName().isEmpty(), qPrintable(button->objectName()));
            }
        }
    }
};

TESSARIN_TEST(TestMainPage);
#include "tst_MainPage.moc"
