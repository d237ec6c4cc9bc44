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
        DropWidget widget;
        widget.show();
        QList<QUrl> received;
        bool isVisibleMeanwhile = false;
        bool takesMore = true;
        connect(&widget, &DropWidget::dropped, this, [&](const QList<QUrl>& urls) {
            if (!received.isEmpty()) {
                return; // a second list would bring a third
            }
            received = urls;
            isVisibleMeanwhile = widget.isVisible();
            takesMore = dropUrls(&widget, {}) || widget.findChild<QPushButton*>()->isEnabled();
        });
        // As they come: in their order, twice, of any kind and from anywhere.
        const QList<QUrl> urls = {QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl::fromLocalFile(QStringLiteral("/a.txt")),
                                  QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl(QStringLiteral("https://corvane.example/a.png"))};
        QVERIFY(dropUrls(&widget, urls));
        QCOMPARE(received, urls);
        QVERIFY(isVisibleMeanwhile);
        QVERIFY(!takesMore);
        QVERIFY(widget.isHidden());
    }
};

TESSARIN_TEST(tst_DropWidget);
#include "tst_DropWidget.moc"
