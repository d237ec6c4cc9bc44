#include "Stage.h"

#include "flow/BaseNode.h"
#include "flow/NodesTabBar.h"
#include "ShownText.h"

#include <QGroupBox>
#include <QPushButton>
#include <QSlider>
#include <QStackedWidget>
#include <QStyle>
#include <QStyleOption>

namespace
{

/// Where the handle of a slider is while it stands at a value.
QPoint handlePlace(const QSlider* slider, int value)
{
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = slider->orientation();
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.tickPosition = slider->tickPosition();
    option.tickInterval = slider->tickInterval();
    option.sliderPosition = value;
    option.sliderValue = value;
    option.upsideDown = slider->invertedAppearance() != slider->isRightToLeft();
    option.subControls = QStyle::SC_SliderHandle | QStyle::SC_SliderGroove;
    return slider->style()
        ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider)
        .center();
}

/// How far from the value meant a drag may end.
int nearness(const QSlider* slider)
{
    return (slider->maximum() - slider->minimum()) / 12 + 1;
}

QPoint checkPlace(const QGroupBox* box)
{
    QStyleOptionGroupBox option;
    option.initFrom(box);
    option.text = box->title();
    option.textAlignment = box->alignment();
    option.lineWidth = 1;
    option.subControls =
        QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxCheckBox | QStyle::SC_GroupBoxLabel;
    return box->style()
        ->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxCheckBox, box)
        .center();
}

/// The picture of a tab that a drag moves about in front of the bar: its only child that is no
/// label and no button.
const QWidget* hangingTab(const QWidget* tabBar)
{
    for (const QWidget* const part : tabBar->findChildren<QWidget*>()) {
        if (part->isVisible() && part->metaObject() == &QWidget::staticMetaObject) {
            return part;
        }
    }
    return nullptr;
}

BaseNode* shownNode(const QWidget* page)
{
    for (BaseNode* const node : page->findChildren<BaseNode*>()) {
        if (node->isVisible()) {
            return node;
        }
    }
    return nullptr;
}

QSlider* shownSlider(const QWidget* page, const QString& caption)
{
    for (QSlider* const slider : page->findChildren<QSlider*>()) {
        if (slider->isVisible() && slider->accessibleName() == shownText(slider, caption)) {
            return slider;
        }
    }
    return nullptr;
}

} // namespace

NodesTabBar* Stage::tabBar() const
{
    return page()->findChild<NodesTabBar*>();
}

QStringList Stage::operationNames() const
{
    QStringList names;
    for (int i = 0; i < tabBar()->count(); ++i) {
        names.append(tabBar()->tabText(i));
    }
    return names;
}

void Stage::addOperation(const QString& name)
{
    const QStringList expected = operationNames() << name;
    expectResult(
        [this, &name] {
            withMenu(find<QPushButton>(QStringLiteral("PushButtonAdd")),
                     [this, &name](QMenu* menu) { chooseEntry(menu, name); });
        },
        QStringLiteral("the result with ") + name);
    check(operationNames() == expected, name + QStringLiteral(" is the last tab"));
}

void Stage::selectOperation(int index)
{
    m_pointer.click(tabBar(), tabBar()->tabRect(index).center());
    check(tabBar()->currentIndex() == index, QStringLiteral("a click selects a tab"));
}

void Stage::dragOperation(int from, int to, const std::function<void()>& onTheWay)
{
    QStringList expected = operationNames();
    expected.move(from, to);
    const QPoint start = tabBar()->tabRect(from).center();
    const QPoint end = tabBar()->tabRect(to).center();
    expectResult(
        [&] {
            m_pointer.pull(tabBar(), start, end);
            onTheWay();
            m_pointer.release(tabBar(), end);
        },
        QStringLiteral("the result in the new order"));
    check(operationNames() == expected, QStringLiteral("a drag moves a tab"));
    waitFor([this] { return !hangingTab(tabBar()); }, QStringLiteral("the dragged tab settles"));
}

void Stage::switchOperation()
{
    BaseNode* const node = shownNode(page());
    auto* const box = node ? node->findChild<QGroupBox*>() : nullptr;
    if (!check(box, QStringLiteral("options with a check are shown"))) {
        return;
    }
    const bool wasActive = node->isActive();
    expectResult([this, box] { m_pointer.click(box, checkPlace(box)); },
                 QStringLiteral("the result with an operation switched"));
    check(node->isActive() != wasActive, QStringLiteral("a click on the check switches"));
}

void Stage::removeOperation()
{
    const int before = tabBar()->count();
    expectResult([this] { click(find<QPushButton>(QStringLiteral("PushButtonRemove"))); },
                 QStringLiteral("the result with an operation removed"));
    check(tabBar()->count() == before - 1, QStringLiteral("a click removes an operation"));
}

void Stage::dragSlider(QSlider* slider, int value, const std::function<void()>& onTheWay)
{
    const QPoint end = handlePlace(slider, value);
    m_pointer.pull(slider, handlePlace(slider, slider->value()), end);
    check(qAbs(slider->value() - value) <= nearness(slider),
          slider->accessibleName() + QStringLiteral(" follows the mouse"));
    onTheWay();
    m_pointer.release(slider, end);
}

void Stage::setSlider(const QString& caption, int value)
{
    QSlider* const slider = shownSlider(page(), caption);
    if (!check(slider, QStringLiteral("there is a slider ") + caption)) {
        return;
    }
    dragSlider(slider, value, [] {});
    const int near = nearness(slider);
    const bool toTheLeft = slider->invertedControls() != slider->isRightToLeft();
    const auto forth = toTheLeft ? Qt::Key_Left : Qt::Key_Right;
    const auto back = toTheLeft ? Qt::Key_Right : Qt::Key_Left;
    for (int i = 0; i < near && slider->value() != value; ++i) {
        press(slider, slider->value() < value ? forth : back);
    }
    check(slider->value() == value, caption + QStringLiteral(" follows the keys"));
}
