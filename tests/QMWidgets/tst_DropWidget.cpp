#include "support/DropEvents.h"
#include "support/ModalDialog.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMWidgets/DropWidget.h>
#include <QSignalSpy>

using QMWidgets::DropWidget;

class tst_DropWidget : public QObject
{
    Q_OBJECT

private slots:
    void acceptsOnlyLists()
    {
        DropWidget widget;
        widget.show();
        QSignalSpy dropped(&widget, &DropWidget::dropped);
        QMimeData text;
        text.setText(QStringLiteral("file:///a.png"));
        QVERIFY(!dropOn(&widget, text));
        QVERIFY(dropped.isEmpty());
        QVERIFY(widget.isVisible());
    }

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

    void opensFilesUnlessCancelled()
    {
        Photos photos;
        const QList<QUrl> urls = {photos.addFile(QStringLiteral("c#.txt"), "text"),
                                  photos.addFile(QStringLiteral("a b.png"), "picture")};
        DropWidget widget;
        widget.show();
        QSignalSpy dropped(&widget, &DropWidget::dropped);
        const auto open = [&widget] {
            widget.slotOpenClicked();
        };
        withModalDialog(open, [](QDialog* dialog) { dialog->reject(); });
        QVERIFY(dropped.isEmpty());
        QVERIFY(widget.isVisible());

        QString caption;
        withModalDialog(open, [&](QDialog* dialog) {
            caption = dialog->windowTitle();
            static_cast<QFileDialog*>(dialog)->setDirectory(photos.folder());
            dialog->findChild<QLineEdit*>()->setText(QStringLiteral("\"c#.txt\" \"a b.png\""));
            dialog->accept();
        });
        QCOMPARE(caption, QStringLiteral("Open the photos"));
        QCOMPARE(dropped.count(), 1);
        QCOMPARE(dropped.first().first().value<QList<QUrl>>(), urls);
        QVERIFY(widget.isHidden());
    }
};

TESSARIN_TEST(tst_DropWidget);
#include "tst_DropWidget.moc"
