#include "AllWindows.h"

#include "app/Startup.h"
#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "flow/TabLabel.h"
#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "preview/BubblePreview.h"
#include "support/TestMain.h"
#include "TabWalk.h"

#include <algorithm>
#include <cstdlib>
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMWidgets/ColorWidgetPopup.h>
#include <QMWidgets/CssDoc.h>
#include <QMWidgets/TranslationsManager.h>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

using QMWidgets::TranslationsManager;

namespace
{

const QColor kAccent(0xff, 0xb0, 0x2e);
constexpr int kSoftened = 150;

QString named(const QWidget* widget)
{
    return QLatin1String(widget->window()->metaObject()->className()) + QLatin1String(": ") +
           nameForMessage(widget);
}

QString joined(QStringList messages)
{
    messages.removeDuplicates();
    return messages.join(QLatin1Char('\n'));
}

/// One of a group is reached by Tab, the others from there by the arrows.
bool isReachedByArrows(const QWidget* control, const QList<QWidget*>& stops)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(control);
    const QButtonGroup* const group = button ? button->group() : nullptr;
    return group && group->exclusive() &&
           std::any_of(stops.begin(), stops.end(), [group](QWidget* stop) {
               const auto* const other = qobject_cast<const QAbstractButton*>(stop);
               return other && other->group() == group;
           });
}

/// An entry of a tool bar has a key, or stands in a menu too.
bool isReachedOtherwise(const QWidget* control)
{
    const auto* const button = qobject_cast<const QToolButton*>(control);
    const QAction* const action = button ? button->defaultAction() : nullptr;
    if (!action) {
        return false;
    }
    const QWidgetList places = action->associatedWidgets();
    return !action->shortcut().isEmpty() ||
           std::any_of(places.begin(), places.end(),
                       [](QWidget* place) { return qobject_cast<QMenu*>(place); });
}

/// The accent, also where the edge of a round button softens it.
int countAccent(QWidget* widget)
{
    const auto distance = [](QRgb one, QRgb other) {
        return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
               std::abs(qBlue(one) - qBlue(other));
    };
    const QImage image = widget->grab().toImage();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += distance(image.pixel(x, y), kAccent.rgb()) < kSoftened ? 1 : 0;
        }
    }
    return count;
}

bool showsFocus(QWidget* stop)
{
    // The editor of sheets keeps a look of its own, and a cursor.
    if (qobject_cast<QMWidgets::CssDoc*>(stop)) {
        return true;
    }
    stop->setFocus(Qt::TabFocusReason);
    const int with = countAccent(stop);
    stop->clearFocus();
    // A ring, so at least its straight parts.
    return with >= countAccent(stop) + 20;
}

bool takesSpaceAndEnter(QPushButton* button)
{
    // What the button does is not the matter here.
    button->setMenu(nullptr);
    QObject::disconnect(button, &QPushButton::clicked, nullptr, nullptr);
    QSignalSpy clicked(button, &QPushButton::clicked);
    button->setFocus(Qt::TabFocusReason);
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
        QTest::keyClick(button, key);
    }
    return clicked.count() == 3;
}

/// What a screen reader has to say of a control.
bool hasName(const QWidget* control)
{
    const auto* const button = qobject_cast<const QAbstractButton*>(control);
    const auto* const group = qobject_cast<const QGroupBox*>(control);
    const QList<QLabel*> labels = control->window()->findChildren<QLabel*>();
    const bool isBuddy = std::any_of(labels.begin(), labels.end(), [control](const QLabel* label) {
        return label->buddy() == control;
    });
    return isBuddy || !control->accessibleName().isEmpty() ||
           (button && !button->text().isEmpty()) || (group && !group->title().isEmpty());
}

/// Whether what a caption names takes the keyboard, itself or by what stands in for it.
bool leadsToControl(const QLabel* caption)
{
    const QWidget* buddy = caption->buddy();
    while (buddy && buddy->focusProxy()) {
        buddy = buddy->focusProxy();
    }
    return buddy && (buddy->focusPolicy() & Qt::TabFocus);
}

} // namespace

/// All windows in the hands of somebody without a mouse.
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanup() { TranslationsManager::instance()->setLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void tabReachesEverythingInReadingOrder_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("from the left") << "en";
        QTest::newRow("from the right") << "ar";
    }

    void tabReachesEverythingInReadingOrder()
    {
        QFETCH(QString, code);
        TranslationsManager::instance()->setLanguage(code);
        AllWindows windows;
        windows.page.slotFilesDropped({QUrl::fromLocalFile(QStringLiteral("/no/photo.png"))});
        QStringList wrong;
        forEachView(windows, [&wrong](QWidget* window) {
            const TabWalk walk(window);
            const int count = walk.forward.size();
            QStringList breaks;
            for (int i = 0; i < count; ++i) {
                if (!isReadingOrder(walk.forward.at(i), walk.forward.at((i + 1) % count))) {
                    breaks += named(walk.forward.at((i + 1) % count));
                }
            }
            // It comes round once.
            if (breaks.size() > 1) {
                wrong += QStringLiteral("out of order: ") + breaks.join(QLatin1String(", "));
            }
            if (walk.back != walk.forward) {
                wrong += QStringLiteral("another way back: ") + named(window);
            }
            for (const QWidget* const control : controlsOf(window)) {
                if (!walk.forward.contains(const_cast<QWidget*>(control)) &&
                    !isReachedByArrows(control, walk.forward) && !isReachedOtherwise(control)) {
                    wrong += QStringLiteral("not reached: ") + named(control);
                }
                if (!hasName(control)) {
                    wrong += QStringLiteral("nameless: ") + named(control);
                }
            }
            for (const QLabel* const label : window->findChildren<QLabel*>()) {
                if (label->text().endsWith(QLatin1Char(':')) && !leadsToControl(label)) {
                    wrong += QStringLiteral("no buddy: ") + named(label) + label->text();
                }
            }
        });
        QVERIFY2(wrong.isEmpty(), qPrintable(joined(wrong)));
    }

    void eachStopIsSeenAndButtonsArePressed()
    {
        AllWindows windows;
        windows.page.slotFilesDropped({QUrl::fromLocalFile(QStringLiteral("/no/photo.png"))});
        QStringList wrong;
        QSet<QWidget*> seen;
        forEachView(windows, [&](QWidget* window) {
            for (QWidget* const stop : TabWalk(window).forward) {
                if (seen.contains(stop)) {
                    continue;
                }
                seen += stop;
                if (!showsFocus(stop)) {
                    wrong += QStringLiteral("not seen: ") + named(stop);
                }
                auto* const button = qobject_cast<QPushButton*>(stop);
                if (button && !takesSpaceAndEnter(button)) {
                    wrong += QStringLiteral("not pressed: ") + named(stop);
                }
            }
        });
        QVERIFY2(seen.size() > 80, qPrintable(QString::number(seen.size())));
        QVERIFY2(wrong.isEmpty(), qPrintable(joined(wrong)));
    }

    void arrowsStepThroughThePhotos()
    {
        MainPage page(nullptr);
        auto* const square = page.findChild<CreatorDropArea*>();
        page.slotFilesDropped({});
        QCOMPARE(page.focusWidget(), square->findChild<QWidget*>(QStringLiteral("PushButton")));
        page.slotFilesDropped({QUrl::fromLocalFile(QStringLiteral("/no/first.png")),
                               QUrl::fromLocalFile(QStringLiteral("/no/second.png")),
                               QUrl::fromLocalFile(QStringLiteral("/no/third.png"))});
        QCOMPARE(page.focusWidget(), page.findChild<QWidget*>(QStringLiteral("PushButtonAdd")));
        auto* const options = page.findChild<NodesOptionsPanel*>();
        QSignalSpy runs(options, &NodesOptionsPanel::imageChanged);
        const struct {
            Qt::Key key;
            const char* name;
        } steps[] = {{Qt::Key_Right, "second"},
                     {Qt::Key_Right, "third"},
                     {Qt::Key_Home, "first"},
                     {Qt::Key_Left, "third"},
                     {Qt::Key_Right, "first"}};
        for (const auto& step : steps) {
            runs.clear();
            QTest::keyClick(square, step.key);
            QCOMPARE(CommonData::instance()->currentName(), QLatin1String(step.name));
            QCOMPARE(runs.count(), 1);
        }
        // As the buttons stand.
        square->setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(square, Qt::Key_Left);
        QCOMPARE(CommonData::instance()->currentName(), QStringLiteral("second"));
    }

    void keysMoveAndShowTabs()
    {
        MainPage page(nullptr);
        auto* const panel = page.findChild<FlowPanel*>();
        auto* const options = page.findChild<NodesOptionsPanel*>();
        BaseNode* const crop = panel->addNode(QStringLiteral("Crop"));
        BaseNode* const blur = panel->addNode(QStringLiteral("Blur"));
        page.show();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        auto* const bar = page.findChild<NodesTabBar*>();
        bar->setFocus();

        // The last one stays where it is.
        QTest::keyClick(bar, Qt::Key_Right, Qt::ControlModifier);
        QTest::keyClick(bar, Qt::Key_Left, Qt::ControlModifier);
        QCOMPARE(options->flow().value(0), blur);
        QCOMPARE(options->flow().value(1), crop);
        QCOMPARE(bar->currentIndex(), 0);

        auto* const label = static_cast<TabLabel*>(bar->tabButton(0, QTabBar::LeftSide));
        label->setPixmap(QPixmap(40, 30));
        auto* const bubble = label->findChild<BubblePreview*>();
        for (const Qt::Key end : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape}) {
            QTest::keyClick(bar, Qt::Key_Space);
            QVERIFY(bubble->isVisible());
            QTest::keyClick(bar, end);
            QVERIFY(bubble->isHidden());
            QCOMPARE(bar->currentIndex(), 0);
        }
        // A bubble that the mouse opened is not the keys' concern, whoever opened it before.
        label->showPreviewToKeys(bar);
        label->slotShowPreview();
        QTest::keyClick(bar, Qt::Key_Escape);
        QVERIFY(bubble->isVisible());
    }

    void arrowsGoThroughAGridAsItStands()
    {
        QMWidgets::ColorWidgetPopup popup(nullptr);
        popup.show();
        QVERIFY(QTest::qWaitForWindowActive(&popup));
        auto* const grid = static_cast<QGridLayout*>(popup.layout());
        const auto at = [grid](int row, int column) {
            return grid->itemAtPosition(row, column)->widget();
        };
        at(1, 1)->setFocus();
        const struct {
            Qt::Key key;
            QWidget* next;
        } steps[] = {{Qt::Key_Down, at(2, 1)}, {Qt::Key_Right, at(2, 2)}, {Qt::Key_Up, at(1, 2)},
                     {Qt::Key_Up, at(0, 2)},   {Qt::Key_Up, at(0, 2)},    {Qt::Key_Left, at(0, 1)}};
        for (const auto& step : steps) {
            QTest::keyClick(QApplication::focusWidget(), step.key);
            QCOMPARE(QApplication::focusWidget(), step.next);
        }
        popup.setLayoutDirection(Qt::RightToLeft);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QCOMPARE(QApplication::focusWidget(), at(0, 2));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
        QVERIFY(popup.isHidden());
    }

    void escapeClosesDialogs()
    {
        AllWindows windows;
        int count = 0;
        for (QWidget* const window : windows.list()) {
            auto* const dialog = qobject_cast<QDialog*>(window);
            if (!dialog) {
                continue;
            }
            ++count;
            dialog->show();
            QVERIFY(QTest::qWaitForWindowActive(dialog));
            QSignalSpy rejected(dialog, &QDialog::rejected);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
            QVERIFY2(dialog->isHidden() && rejected.count() == 1, qPrintable(named(dialog)));
        }
        QVERIFY(count > 10);
    }
};

TESSARIN_TEST(TestKeyboard);
#include "tst_Keyboard.moc"
