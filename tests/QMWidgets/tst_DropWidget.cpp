#include "support/TestMain.h"

#include <functional>
#include <QDir>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QMWidgets/DropWidget.h>
#include <QMWidgets/FileDialog.h>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>

using QMWidgets::DropWidget;

namespace
{

/// Answers the file dialog that the next lines open, so that it never waits for anybody.
class DialogAnswer : public QObject
{
public:
    explicit DialogAnswer(std::function<void(QFileDialog*)> answer)
        : m_answer(std::move(answer))
    {
        connect(&m_timer, &QTimer::timeout, this, [this] { look(); });
        m_timer.start(1);
    }

private:
    void look()
    {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            m_timer.stop();
            m_answer(dialog);
            // Whatever the answer did, the dialog ends here.
            dialog->close();
        }
    }

    QTimer m_timer;
    std::function<void(QFileDialog*)> m_answer;
};

std::function<void(QFileDialog*)> choosing(const QString& folder, const QString& names)
{
    return [=](QFileDialog* dialog) {
        dialog->setDirectory(folder);
        dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(names);
        static_cast<QDialog*>(dialog)->accept();
    };
}

void makeFiles(const QTemporaryDir& dir, const QStringList& names)
{
    for (const QString& name : names) {
        QFile file(dir.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

} // namespace

class tst_DropWidget : public QObject
{
    Q_OBJECT

private slots:
    void acceptsOnlyLists()
    {
        DropWidget widget;
        widget.show();
        QMimeData text;
        text.setText(QStringLiteral("file:///a.png"));
        QDragEnterEvent reject(QPoint(5, 5), Qt::CopyAction, &text, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &reject);
        QVERIFY(!reject.isAccepted());

        QMimeData list;
        list.setUrls({QUrl(QStringLiteral("https://corvane.example/a.png"))});
        QDragEnterEvent accept(QPoint(5, 5), Qt::CopyAction, &list, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &accept);
        QVERIFY(accept.isAccepted());
        QVERIFY(widget.isVisible());
    }

    void handsOverAndHides()
    {
        DropWidget widget;
        widget.show();
        QList<QUrl> received;
        bool visibleMeanwhile = false;
        bool takesMore = true;
        connect(&widget, &DropWidget::dropped, this, [&](const QList<QUrl>& urls) {
            received = urls;
            visibleMeanwhile = widget.isVisible();
            QMimeData more;
            more.setUrls(urls);
            QDragEnterEvent next(QPoint(5, 5), Qt::CopyAction, &more, Qt::LeftButton,
                                 Qt::NoModifier);
            QCoreApplication::sendEvent(&widget, &next);
            takesMore = next.isAccepted() || widget.findChild<QPushButton*>()->isEnabled();
        });
        const QList<QUrl> urls = {QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl::fromLocalFile(QStringLiteral("/a.txt")),
                                  QUrl::fromLocalFile(QStringLiteral("/z.png")),
                                  QUrl(QStringLiteral("https://corvane.example/a.png"))};
        QMimeData data;
        data.setUrls(urls);
        QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &enter);
        QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &drop);
        QCOMPARE(received, urls);
        QVERIFY(visibleMeanwhile);
        QVERIFY(!takesMore);
        QVERIFY(widget.isHidden());
    }

    void opensFiles()
    {
        const QTemporaryDir dir;
        makeFiles(dir, {QStringLiteral("a b.png"), QStringLiteral("c#.txt")});
        DropWidget widget;
        widget.show();
        QSignalSpy dropped(&widget, &DropWidget::dropped);
        QString caption;
        const DialogAnswer answer([&](QFileDialog* dialog) {
            caption = dialog->windowTitle();
            choosing(dir.path(), QStringLiteral("\"c#.txt\" \"a b.png\""))(dialog);
        });
        widget.slotOpenClicked();
        QCOMPARE(caption, QStringLiteral("Open the photos"));
        QCOMPARE(dropped.count(), 1);
        const QList<QUrl> expected = {QUrl::fromLocalFile(dir.filePath(QStringLiteral("c#.txt"))),
                                      QUrl::fromLocalFile(dir.filePath(QStringLiteral("a b.png")))};
        QCOMPARE(dropped.first().first().value<QList<QUrl>>(), expected);
        QVERIFY(widget.isHidden());
    }

    void cancelChangesNothing()
    {
        DropWidget widget;
        widget.show();
        QSignalSpy dropped(&widget, &DropWidget::dropped);
        const DialogAnswer answer([](QFileDialog* dialog) { dialog->reject(); });
        widget.slotOpenClicked();
        QCOMPARE(dropped.count(), 0);
        QVERIFY(widget.isVisible());
    }
};

TESSARIN_TEST(tst_DropWidget);
#include "tst_DropWidget.moc"
