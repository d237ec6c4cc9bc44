#include "reference/RandomImages.h"
#include "support/ImageCompare.h"
#include "support/TestMain.h"

#include <algorithm>
#include <limits>
#include <MGraphX/Geometry.h>
#include <MGraphX/GraphX.h>
#include <MGraphX/OpaqueScaling.h>
#include <MGraphX/Tone.h>
#include <utility>
#include <vector>

using MGraphX::GraphX;

class TestGeometry : public QObject
{
    Q_OBJECT

private slots:
    void extremesGiveNoImage()
    {
        const QImage photo = randomImage({1000, 500}, QImage::Format_ARGB32, RandomAlpha::Any, 1);
        for (const int extreme :
             {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            QVERIFY(GraphX::crop(photo, extreme, 0, 0, 0).isNull());
            QVERIFY(GraphX::crop(photo, 0, extreme, 0, 0).isNull());
            QVERIFY(GraphX::crop(photo, 0, 0, extreme, 0).isNull());
            QVERIFY(GraphX::crop(photo, 0, 0, extreme, extreme).isNull());
            QVERIFY(GraphX::crop(photo, 0, extreme, 0, extreme).isNull());
            QVERIFY(GraphX::frame(photo, extreme, Qt::red).isNull());
        }
    }

    void whatIsCroppedAwayIsLeftAlone()
    {
        for (const auto format : {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied,
                                  QImage::Format_RGB32, QImage::Format_RGBA8888}) {
            const QImage photo = randomImage({10, 6}, format, RandomAlpha::Opaque, 1);
            std::vector<uchar> bytes(photo.constBits(), photo.constBits() + photo.sizeInBytes());
            QImage part =
                MGraphX::geometry::crop(QImage(bytes.data(), 10, 6, 40, format), 20, 0, 0, 0);
            QVERIFY(!MGraphX::tone::invert(std::move(part)).isNull());
            for (int y = 0; y < photo.height(); ++y) {
                QVERIFY(
                    std::equal(photo.constScanLine(y), photo.constScanLine(y) + 8, &bytes[40 * y]));
            }
        }
    }

    void opaqueScalingGivesTheToolkitsWords()
    {
        const struct {
            QSize size;
            QSize box;
        } rows[] = {{{200, 120}, {100, 100}}, {{731, 487}, {360, 360}}, {{37, 900}, {36, 36}},
                    {{900, 31}, {7, 7}},      {{11, 7}, {50, 50}},      {{60, 40}, {60, 60}},
                    {{60, 40}, {0, 10}}};
        for (const auto& each : rows) {
            QImage image = randomImage(each.size, QImage::Format_ARGB32, RandomAlpha::Opaque, 3);
            COMPARE_IMAGES(MGraphX::scaledOpaque(image, each.box),
                           image.scaled(each.box, Qt::KeepAspectRatio, Qt::SmoothTransformation));
            QVERIFY(MGraphX::isOpaque(image));
            image.setPixel(image.width() - 1, image.height() - 1, 0xfe000000u);
            QVERIFY(!MGraphX::isOpaque(image));
        }
        QVERIFY(MGraphX::scaledOpaque(QImage(), {10, 10}).isNull());
    }
};

TESSARIN_TEST(TestGeometry);
#include "tst_Geometry.moc"
