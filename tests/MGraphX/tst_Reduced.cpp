#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <MGraphX/Reduced.h>

using MGraphX::reduced;

class TestReduced : public QObject
{
    Q_OBJECT

private slots:
    void givesTheToolkitsWordsWhereTheFactorDivides()
    {
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_RGB32}) {
            const QImage image = noise(QSize(390, 420), 3, format);
            COMPARE_IMAGES(reduced(image, 3),
                           image.scaled(130, 140, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                               .convertToFormat(QImage::Format_ARGB32_Premultiplied));
        }
    }

    void hasAnAnswerForAnySize()
    {
        QImage image(301, 1000, QImage::Format_ARGB32);
        image.fill(0xff102030u);
        for (const int factor : {1, 2, 7, 300, 5000}) {
            QImage expected(QSize(301 / factor, 1000 / factor).expandedTo(QSize(1, 1)),
                            QImage::Format_ARGB32_Premultiplied);
            expected.fill(0xff102030u);
            QCOMPARE(reduced(image, factor), expected);
        }
        QVERIFY(reduced(image, 0).isNull());
        QVERIFY(reduced(QImage(), 2).isNull());
    }
};

TESSARIN_TEST(TestReduced);
#include "tst_Reduced.moc"
