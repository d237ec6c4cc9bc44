#include "reference/RandomImages.h"
#include "support/TestMain.h"

#include <functional>
#include <MGraphX/GraphX.h>
#include <QCryptographicHash>

using MGraphX::GraphX;

using Filter = std::function<QImage(const QImage&)>;
Q_DECLARE_METATYPE(Filter)

/// Digests of what the operations made of many random images, written down once. Every compiler,
/// optimization and instruction set has to arrive at the same ones.
class TestDigest : public QObject
{
    Q_OBJECT

private:
    static QByteArray digest(const Filter& filter)
    {
        QCryptographicHash hash(QCryptographicHash::Md5);
        for (const QImage& source : randomImages()) {
            const QImage image = filter(source);
            for (int y = 0; y < image.height(); ++y) {
                hash.addData(reinterpret_cast<const char*>(image.constScanLine(y)),
                             4 * image.width());
            }
        }
        return hash.result().toHex();
    }

private slots:
    void everyBuildGivesTheSamePixels_data()
    {
        QTest::addColumn<Filter>("filter");
        QTest::addColumn<QByteArray>("expected");
        const auto row = [](const char* name, const Filter& filter, const char* expected) {
            QTest::newRow(name) << filter << QByteArray(expected);
        };
        const auto tone = [](int brightness, int contrast, float saturation) {
            return [=](const QImage& image) {
                return GraphX::brightnessContrastSaturation(image, brightness, contrast,
                                                            saturation);
            };
        };
        row("tone, doubled colour", tone(0, 0, 2.0f), "9ebbfc66932976c6344cde400167dbe1");
        row("tone, all three", tone(-27, 58, 82 / 50.0f), "f33d9db4075e8b97a4266d092d158ea7");
        row("tone, soft", tone(31, -64, 0.3f), "e52c4647e9835ad6c5a1115109af1589");
        row(
            "histogram",
            [](const QImage& image) { return GraphX::optimizeHistogram(image, 7, 12); },
            "2d4fcf227a8f87983271180539d2aee0");
        row("grayscale", GraphX::grayscale, "9fa8e5da979b4df3cda8b8ffdcade37f");
        row(
            "binarize", [](const QImage& image) { return GraphX::binarize(image, 99); },
            "ade68109cef2274803b626b355b437c8");
        row("swap", GraphX::swapRedGreen, "5ce59a65305c2e5e0a9f119872e32f21");
        row(
            "blur", [](const QImage& image) { return GraphX::blur(image, image.rect(), 4, false); },
            "570299920be817cb83c87512e92f5df1");
        row("rotate", GraphX::rotate90, "03d2455b76d5a4f7602256e73edd9dfc");
        row(
            "mirror", [](const QImage& image) { return GraphX::mirror(image, true, false); },
            "3a3b7de53dabb377bbefc07df4b1326d");
    }

    void everyBuildGivesTheSamePixels()
    {
        QFETCH(Filter, filter);
        QTEST(digest(filter), "expected");
    }
};

TESSARIN_TEST(TestDigest);
#include "tst_Digest.moc"
