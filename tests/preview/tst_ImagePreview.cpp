#include "intake/CommonData.h"
#include "preview/ImagePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/WindowEvents.h"

#include <QPushButton>
#include <QSignalSpy>

class TestImagePreview : public QObject
{
    Q_OBJECT

private slots:
    void fitsAnyPictureIntoTheSquare()
    {
        const struct {
            QSize picture;
            QSize shown;
        } rows[] = {{{30, 20}, {360, 240}},
                    {{300, 4000}, {27, 360}},
                    {{1, 20000}, {1, 360}},
                    {{0, 0}, {0, 0}}};
        ImagePreview preview(nullptr);
        for (const auto& each : rows) {
            preview.slotSetImage(noise(each.picture, 1));
            QCOMPARE(static_cast<QMWidgets::Label&>(preview).pixmap().size(), each.shown);
        }
    }

    void offersStepsForMoreThanOnePhoto()
    {
        ImagePreview preview(nullptr);
        preview.show();
        auto* next = preview.findChild<QPushButton*>(QStringLiteral("NextImageButton"));
        auto* previous = preview.findChild<QPushButton*>(QStringLiteral("PreviousImageButton"));
        auto* info = preview.findChild<QLabel*>();
        CommonData::instance()->setCurrentIndex(0);
        for (const int count : {1, 2}) {
            CommonData::instance()->setCount(count);
            sendEvent(&preview, QEvent::Enter);
            QCOMPARE(next->isVisible(), count > 1);
            QCOMPARE(previous->isVisible(), count > 1);
            QCOMPARE(info->isVisible(), count > 1);
        }
        QCOMPARE(info->text(), QStringLiteral("<H1>1 of 2</H1>"));
        QSignalSpy nextSpy(&preview, &ImagePreview::next);
        QSignalSpy previousSpy(&preview, &ImagePreview::previous);
        next->click();
        QVERIFY(nextSpy.count() == 1 && previousSpy.isEmpty());
        previous->click();
        QVERIFY(nextSpy.count() == 1 && previousSpy.count() == 1);
        sendEvent(&preview, QEvent::Leave);
        QVERIFY(!next->isVisible() && !previous->isVisible() && !info->isVisible());
    }
};

TESSARIN_TEST(TestImagePreview);
#include "tst_ImagePreview.moc"
