#include "flow/BaseNode.h"
#include "flow/Operations.h"
#include "support/TestMain.h"

#include <memory>
#include <QPixmap>

class TestOperations : public QObject
{
    Q_OBJECT

private:
    static bool sameIcon(const QString& text, const QString& icon)
    {
        const QImage picture = nodeIcon(text).toImage();
        return !picture.isNull() && picture == QPixmap(QStringLiteral(":/") + icon).toImage();
    }

private slots:
    void eachRowMakesANodeOfItsName()
    {
        for (const Operation& operation : operations()) {
            const std::unique_ptr<BaseNode> node(operation.create(operation.name));
            QCOMPARE(node->name(), operation.name);
            QVERIFY(node->isActive());
            QCOMPARE(findOperation(operation.name), &operation);
            QVERIFY2(sameIcon(operation.name, operation.icon), qPrintable(operation.name));
        }
        QVERIFY(!findOperation(QStringLiteral("grayscale")));
    }

    void iconsAreFoundByContainment()
    {
        QVERIFY(sameIcon(QStringLiteral("My Invert step"), QStringLiteral("Icon_INV.png")));
        QVERIFY(sameIcon(QStringLiteral("Invert Binarization"), QStringLiteral("Icon_BIN.png")));
        QVERIFY(sameIcon(QStringLiteral("Motion Blur, Crop"), QStringLiteral("Icon_BLR.png")));
        QVERIFY(sameIcon(QStringLiteral("Rotate, Resize"), QStringLiteral("Icon_RSZ.png")));
        QVERIFY(sameIcon(QStringLiteral("Grayscale Vignetting"), QStringLiteral("Icon_WGN.png")));
        QVERIFY(nodeIcon(QStringLiteral("invert")).isNull());
    }
};

TESSARIN_TEST(TestOperations);
#include "tst_Operations.moc"
