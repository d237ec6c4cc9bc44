#include "app/HelpSlides.h"
#include "app/MainPage.h"
#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QImage>
#include <QMWidgets/App.h>
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
        auto* const button = page.findChild<QPushButton*>(QStringLiteral("SettingsButton"));
        QString title;
        withModalDialog([&] { button->click(); },
                        [&](QDialog* dialog) { title = dialog->windowTitle(); });
        QCOMPARE(title, QStringLiteral("Tessarin Settings"));
    }

    void photosBringTheHelp()
    {
        auto* const app = QMWidgets::App::app();
        auto* const timer = app->findChild<QTimer*>(QStringLiteral("HelpTimer"));
        const QString never = QStringLiteral("NeverShowItAgain");
        MainPage page(nullptr);
        for (const bool isNever : {true, false}) {
            app->setSettingsValue(never, isNever);
            page.slotFilesDropped({});
            QCOMPARE(timer->isActive(), !isNever);
        }
        timer->stop();
        app->setSettingsValue(never, true);
    }

    void slidesFollowTheLanguageAndAreThere()
    {
        const struct {
            const char* language;
            const char* code;
        } rows[] = {{"en", "en"}, {"de", "de"}, {"ru", "ru"}, {"fr", "en"}, {"DE", "en"}};
        const QString folder = QStringLiteral(TESSARIN_SLIDES_FOLDER);
        for (const auto& row : rows) {
            const QStringList slides = helpSlides(row.language, folder);
            QCOMPARE(slides.size(), 12);
            QCOMPARE(slides.first(), folder + QStringLiteral("TS1_%1.jpeg").arg(row.code));
            QCOMPARE(slides.last(), folder + QStringLiteral("TS12_%1.jpeg").arg(row.code));
            for (const QString& path : slides) {
                const QImage slide(path, "JPEG");
                QVERIFY2(slide.size() == QSize(1600, 1200), qPrintable(path));
            }
        }
    }
};

TESSARIN_TEST(TestMainPage);
#include "tst_MainPage.moc"
