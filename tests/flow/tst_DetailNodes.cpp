#include "NodeTesting.h"
#include "reference/BlurReference.h"
#include "reference/VignetteReference.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

class TestDetailNodes : public QObject
{
    Q_OBJECT

private slots:
    void theWholePhotoIsBlurredInAllItsChannels()
    {
        const QImage source = noise(QSize(40, 30), 7);
        for (const int radius : {0, 2, 10, 20}) {
            const QString text = QStringLiteral("<P><Radius>%1</Radius></P>").arg(radius);
            const auto node = makeNode("Blur");
            load(*node, text);
            const QImage expected = reference::blur(source, source.rect(), radius, false);
            COMPARE_IMAGES(processed(*node, source), expected);
            COMPARE_IMAGES(batched("Blur", source, text), expected);
        }
    }

    void theVignetteTakesItsThreeParameters()
    {
        const QImage source = noise(QSize(40, 20), 7);
        const QString text =
            QStringLiteral("<P><Radius>40</Radius><Opacity>70</Opacity><Color>#102030</Color></P>");
        const auto node = makeNode("Vignetting");
        load(*node, text);
        const QImage expected = reference::vignette(source, 40, 70, QColor(16, 32, 48));
        COMPARE_IMAGES(processed(*node, source), expected);
        COMPARE_IMAGES(batched("Vignetting", source, text), expected);
    }
};

TESSARIN_TEST(TestDetailNodes);
#include "tst_DetailNodes.moc"
