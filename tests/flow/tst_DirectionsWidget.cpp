#include "flow/DirectionsWidget.h"
#include "support/TestMain.h"

#include <algorithm>
#include <QGroupBox>
#include <QPushButton>
#include <QSignalSpy>

class TestDirectionsWidget : public QObject
{
    Q_OBJECT

private:
    /// The nine buttons as they lie, row by row.
    static QList<QPushButton*> cells(const DirectionsWidget& widget)
    {
        QList<QPushButton*> buttons = widget.findChildren<QPushButton*>();
        std::sort(buttons.begin(), buttons.end(), [](QPushButton* a, QPushButton* b) {
            return a->y() != b->y() ? a->y() < b->y() : a->x() < b->x();
        });
        return buttons;
    }

    static QList<int> checkedCells(const DirectionsWidget& widget)
    {
        QList<int> checked;
        const QList<QPushButton*> buttons = cells(widget);
        for (int i = 0; i < buttons.size(); ++i) {
            if (buttons.at(i)->isChecked()) {
                checked.append(i);
            }
        }
        return checked;
    }

private slots:
    void cellsLieInReadingOrder()
    {
        DirectionsWidget widget(nullptr);
        widget.show();
        QCOMPARE(checkedCells(widget), QList<int>{BottomRight});
        QSignalSpy changed(&widget, &DirectionsWidget::directionChanged);
        const QList<QPushButton*> buttons = cells(widget);
        QCOMPARE(buttons.size(), 9);
        for (int i = 0; i < buttons.size(); ++i) {
            QTest::mouseClick(buttons.at(i), Qt::LeftButton);
            QCOMPARE(int(widget.direction()), i);
            QCOMPARE(checkedCells(widget), QList<int>{i});
        }
        QTest::mouseClick(buttons.last(), Qt::LeftButton);
        QCOMPARE(checkedCells(widget), QList<int>{BottomRight});
        QCOMPARE(changed.count(), 10);
    }

    void setDirectionTellsInAnyCase()
    {
        DirectionsWidget widget(nullptr);
        widget.show();
        QSignalSpy changed(&widget, &DirectionsWidget::directionChanged);
        widget.setDirection(BottomRight);
        QCOMPARE(changed.count(), 1);
        widget.setDirection(MiddleLeft);
        QCOMPARE(checkedCells(widget), QList<int>{MiddleLeft});
        widget.setDirection(Direction(-1));
        QCOMPARE(changed.count(), 3);
        QCOMPARE(checkedCells(widget), QList<int>());
    }

    void keepsItsSidesInAMirroredPage()
    {
        QWidget page;
        page.setLayoutDirection(Qt::RightToLeft);
        DirectionsWidget widget(&page);
        page.show();
        const auto xOf = [&](const QString& name) {
            for (const QPushButton* cell : cells(widget)) {
                if (cell->accessibleName() == name) {
                    return cell->mapTo(&page, QPoint()).x();
                }
            }
            return -1;
        };
        QVERIFY(xOf(QStringLiteral("Top left")) >= 0);
        QVERIFY(xOf(QStringLiteral("Top left")) < xOf(QStringLiteral("Top right")));
    }
};

TESSARIN_TEST(TestDirectionsWidget);
#include "tst_DirectionsWidget.moc"
