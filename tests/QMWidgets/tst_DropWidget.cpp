#include "support/DropEvents.h"
#include "support/TestMain.h"

#include <QMWidgets/DropWidget.h>
#include <QPushButton>

using QMWidgets::DropWidget;

class tst_DropWidget : public QObject
{
    Q_OBJECT

private slots:
    void handsOverAndHides()
    {
        // As they come: in their order, twice, of any kind and from anywhere.
        const QList<QUrl> urls = {QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl::fromLocalFile(QStringLiteral("/a.txt")),
                                  QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl(QStringLiteral("https://corvane.example/a.png"))};
        DropWidget widget;
        widget.show();
        QMimeData photos;
        photos.setUrls(urls);
        const auto* const veil = widget.findChild<QFrame*>(QStringLiteral("DropVeil"));
        QVERIFY(dragOnto(&widget, photos));
        QVERIFY(veil->isVisible());
        QDragLeaveEvent leave;
        QCoreApplication::sendEvent(&widget, &leave);
        QVERIFY(veil->isHidden());

        QList<QUrl> received;
        bool isVisibleMeanwhile = false;
        bool isVeiledMeanwhile = true;
        bool takesMore = true;
        connect(&widget, &DropWidget::dropped, this, [&](const QList<QUrl>& given) {
            if (!received.isEmpty()) {
                return; // a second list would bring a third
            }
            received = given;
            isVisibleMeanwhile = widget.isVisible();
            isVeiledMeanwhile = veil->isVisible();
            takesMore = dropUrls(&widget, urls) || widget.findChild<QPushButton*>()->isEnabled();
        });
        QCOMPARE(dropUrls(&widget, urls), Qt::CopyAction);
        QCOMPARE(received, urls);
        QVERIFY(isVisibleMeanwhile);
        QVERIFY(!isVeiledMeanwhile);
        QVERIFY(!takesMore);
        QVERIFY(widget.isHidden());
    }
};

TESSARIN_TEST(tst_DropWidget);
#include "tst_DropWidget.moc"
