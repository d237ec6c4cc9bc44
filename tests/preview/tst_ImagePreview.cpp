#include "intake/CommonData.h"
#include "preview/ImagePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QPushButton>
#include <QSignalSpy>

class TestImagePreview : public QObject
{
    Q_OBJECT

private:
    static void hover(ImagePreview& preview, QEvent::Type type)
    {
        QEvent event(type);
        QCoreApplication::sendEvent(&preview, &event);
    }

private slots:
    void fitsAnyPictureIntoTheSquare_data()
    {
        QTest::addColumn<QSize>("picture");
        QTest::addColumn<QSize>("shown");
        QTest::newRow("small") << QSize(30, 20) << QSize(360, 240);
        QTest::newRow("tall") << QSize(300, 4000) << QSize(27, 360);
        QTest::newRow("one column") << QSize(1, 20000) << QSize(1, 360);
        QTest::newRow("null") << QSize() << QSize();
    }

    void fitsAnyPictureIntoTheSquare()
    {
        QFETCH(QSize, picture);
        ImagePreview preview(nullptr);
        preview.slotSetImage(noise(QSize(10, 10), 1));
        preview.slotSetImage(picture.isValid() ? noise(picture, 1) : QImage());
        const QPixmap pixmap = static_cast<QMWidgets::Label&>(preview).pixmap();
        QTEST(pixmap.isNull() ? QSize() : pixmap.size(), "shown");
    }

    void offersStepsForMoreThanOnePhoto()
    {
        ImagePreview preview(nullptr);
        preview.show();
        auto* next = preview.findChild<QPushButton*>(QStringLiteral("NextImageButton"));
        auto* previous = preview.findChild<QPushButton*>(QStringLiteral("PreviousImageButton"));
        auto* info = preview.findChild<QLabel*>();
        CommonData::instance()->setCount(1);
        CommonData::instance()->setCurrentIndex(0);
        hover(preview, QEvent::Enter);
        QVERIFY(!next->isVisible() && !previous->isVisible() && !info->isVisible());

        CommonData::instance()->setCount(2);
        hover(preview, QEvent::Enter);
        QVERIFY(next->isVisible() && previous->isVisible() && info->isVisible());
        QCOMPARE(info->text(), QStringLiteral("<H1>1 of 2</H1>"));
        QSignalSpy nextSpy(&preview, &ImagePreview::next);
        QSignalSpy previousSpy(&preview, &ImagePreview::previous);
        next->click();
        previous->click();
        QCOMPARE(nextSpy.count(), 1);
        QCOMPARE(previousSpy.count(), 1);
        hover(preview, QEvent::Leave);
        QVERIFY(!next->isVisible() && !previous->isVisible() && !info->isVisible());
    }
};

TESSARIN_TEST(TestImagePreview);
#include "tst_ImagePreview.moc"
