#include "flow/BaseNode.h"
#include "flow/ComboSlider.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/WindowEvents.h"

#include <memory>
#include <QEventLoop>
#include <QPointer>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QVBoxLayout>
#include <utility>

namespace
{

/// Both panels of the flow on one page, with a photo and three operations.
class Page : public QWidget
{
public:
    Page()
        : options(new NodesOptionsPanel(this)),
          panel(new FlowPanel(options, this))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(options);
        layout->addWidget(panel);
        connect(panel, &FlowPanel::flowChanged, options, &NodesOptionsPanel::slotFlowChanged);
        connect(panel, &FlowPanel::nodeRemoved, options, &NodesOptionsPanel::slotNodeRemoved);
        options->setImage(noise(QSize(40, 30), 1));
        for (const char* name : {"Invert", "Grayscale", "Invert", "Grayscale", "Binarization"}) {
            panel->addNode(QLatin1String(name));
        }
        panel->slotTabMoved(0, 0);
        bar = panel->findChild<NodesTabBar*>();
        removeButton = panel->findChild<QPushButton*>(QStringLiteral("PushButtonRemove"));
        resize(735, 600);
        show();
    }

    /// Calls act when the first node of the next run has done its work.
    template <class Act> void inTheNextRun(Act act)
    {
        auto done = std::make_shared<bool>(false);
        connect(options->flow().value(0), &BaseNode::previewChanged, this, [done, act] {
            if (!std::exchange(*done, true)) {
                act();
            }
        });
    }

    bool isConsistent() const
    {
        for (int i = 0; i < bar->count(); ++i) {
            const BaseNode* const node = options->flow().value(i);
            if (!node || node->name() != bar->tabText(i)) {
                return false;
            }
        }
        return options->flow().size() == bar->count();
    }

    NodesOptionsPanel* options;
    FlowPanel* panel;
    NodesTabBar* bar;
    QPushButton* removeButton;
};

} // namespace

/// What a user does while a run lets events through, as the window system delivers it.
class TestFlowReentry : public QObject
{
    Q_OBJECT

private slots:
    void aNodeMayGoInTheRunThatItsOwnControlStarted()
    {
        Page page;
        QPointer<BaseNode> binary = page.options->flow().value(4);
        QPointer<QSpinBox> spinBox = binary->findChild<QSpinBox*>();
        spinBox->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(&page));
        bool aliveAfterTheRun = false;
        page.inTheNextRun([&] { postClick(page.removeButton); });
        connect(spinBox, qOverload<int>(&QSpinBox::valueChanged), &page,
                [&] { aliveAfterTheRun = !binary.isNull(); });
        postKey(spinBox, Qt::Key_Up);
        // Deferred deletion knows how deep it is only below an event loop.
        QEventLoop loop;
        connect(binary, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
        QCOMPARE(page.bar->count(), 4);
        QVERIFY(aliveAfterTheRun);
        QVERIFY(page.isConsistent());
    }

    void aDraggedTabMayBeLetGoOutsideInTheRunOfTheDrag_data()
    {
        QTest::addColumn<int>("removals");
        QTest::newRow("only let go") << 0;
        QTest::newRow("and one removed") << 1;
        QTest::newRow("and all removed") << 5;
    }

    void aDraggedTabMayBeLetGoOutsideInTheRunOfTheDrag()
    {
        QFETCH(int, removals);
        Page page;
        QVERIFY(QTest::qWaitForWindowActive(&page));
        const QPoint from = page.bar->tabRect(4).center();
        bool letGo = false;
        postMouse(page.bar, from, QEvent::MouseButtonPress);
        QCoreApplication::processEvents();
        page.inTheNextRun([&] {
            postMouse(page.bar, QPoint(from.x() / 2, -30), QEvent::MouseButtonRelease);
            for (int i = 0; i < removals; ++i) {
                postClick(page.removeButton);
            }
            letGo = true;
        });
        for (int i = 1; i <= 10 && !letGo; ++i) {
            postMouse(page.bar, from - QPoint(i * from.x() / 10, 0), QEvent::MouseMove);
            QCoreApplication::processEvents();
        }
        QVERIFY(letGo);
        QTRY_COMPARE(page.bar->count(), 5 - removals);
        QVERIFY(page.isConsistent());
    }

    void aFlowLoadedInTheRunOfAnotherStays_data()
    {
        QTest::addColumn<QString>("meanwhile");
        QTest::addColumn<QStringList>("expected");
        QTest::newRow("another one") << "load" << QStringList{"Blur", "Crop"};
        QTest::newRow("none") << "clear" << QStringList();
        QTest::newRow("an added operation") << "add" << QStringList{"Mirror"};
        QTest::newRow("a removed operation") << "remove" << QStringList{"Mirror"};
    }

    void aFlowLoadedInTheRunOfAnotherStays()
    {
        QFETCH(QString, meanwhile);
        Page page;
        const QString flow = QStringLiteral("<F>%1</F>");
        const QString operation = QStringLiteral("<Operation name='%1' index='%2'/>");
        page.inTheNextRun([&] {
            if (meanwhile == QLatin1String("load")) {
                page.panel->loadFlow(flow.arg(operation.arg(QStringLiteral("Blur")).arg(0) +
                                              operation.arg(QStringLiteral("Crop")).arg(1)));
            } else if (meanwhile == QLatin1String("clear")) {
                page.panel->slotNewFavorite();
            } else if (meanwhile == QLatin1String("add")) {
                page.panel->slotAddWaterMarkNode();
            } else {
                page.panel->slotRemoveNode();
            }
        });
        page.panel->loadFlow(flow.arg(operation.arg(QStringLiteral("Mirror")).arg(0)));
        QVERIFY(page.isConsistent());
        QStringList names;
        for (const BaseNode* node : page.options->flow()) {
            names += node->name();
        }
        QTEST(names, "expected");
    }

    void aStepOfTheSliderInItsOwnRunIsHeard()
    {
        ComboSlider control(QString(), nullptr);
        control.setRange(0, 100);
        auto* const slider = control.findChild<QSlider*>();
        QList<int> heard;
        connect(&control, &ComboSlider::sliderMoved, &control, [&](int value) {
            heard += value;
            if (value == 10) {
                slider->setValue(25);
            }
        });
        slider->setValue(10);
        QCOMPARE(heard, QList<int>({10, 25}));
        QCOMPARE(control.findChild<QSpinBox*>()->value(), 25);
        QCOMPARE(control.value(), 25);
    }
};

TESSARIN_TEST(TestFlowReentry);
#include "tst_FlowReentry.moc"
