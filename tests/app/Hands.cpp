#include "Hands.h"

#include "batch/BatchDialog.h"
#include "flow/BaseNode.h"
#include "flow/FavoritesDeleteDlg.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "flow/TabLabel.h"
#include "intake/CommonData.h"
#include "intake/CreatorDropArea.h"
#include "preview/ImagePreview.h"
#include "preview/ImageViewDialog.h"
#include "Program.h"
#include "support/DropEvents.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMWidgets/InputDialog.h>
#include <QSet>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QTimerEvent>

namespace
{

/// How many actions may lie inside each other. Dialogs are answered at any depth.
constexpr int kDeepest = 4;
constexpr int kMostNodes = 6;
constexpr int kCommandsOfFavorites = 5; // with the separator

enum BatchPlan { LetItRun, StopIt, CloseIt, PauseIt, ResumeIt };

} // namespace

Hands::Hands(Program& program, const QList<QUrl>& photos, quint32 seed, int actions)
    : m_actions{
          {14, "add", [this] { addNode(); }},
          {10, "remove", [this] { press("PushButtonRemove"); }},
          {6, "click a tab", [this] { dragTab(0); }},
          {10, "drag a tab", [this] { dragTab(1 + upTo(8)); }},
          {5, "flows", [this] { chooseFavorite(0, kCommandsOfFavorites); }},
          {5, "load", [this] { chooseFavorite(kCommandsOfFavorites, -1); }},
          {20, "slider", [this] { moveSlider(); }},
          {15, "control", [this] { setControl(); }},
          {8, "step", [this] { step(); }},
          {4, "drop", [this] { dropPhotos(); }},
          {5, "bubble", [this] { showBubble(); }},
          {3, "large view", [this] { press("PreviewButton"); }},
          {1, "batch", [this] { runBatch(); }},
          {1, "open photos", [this] { square()->slotOpenClicked(); }},
      },
      m_program(program),
      m_options(program.page->findChild<NodesOptionsPanel*>()),
      m_bar(program.page->findChild<NodesTabBar*>()),
      m_photos(photos),
      m_random(seed),
      m_seed(seed),
      m_actionsLeft(actions)
{
    startTimer(0);
}

/// A timer that has fired isn't heard again from within its own turn: each turn has a new one.
void Hands::timerEvent(QTimerEvent* event)
{
    killTimer(event->timerId());
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (m_actionsLeft == 0) {
        QCoreApplication::exit();
    } else if (m_turnsToWait > 0) {
        --m_turnsToWait;
        startTimer(0);
    } else if (!dialog && m_depth >= kDeepest) {
        startTimer(2);
    } else {
        takeTurn(dialog);
    }
}

void Hands::takeTurn(QDialog* dialog)
{
    // Nodes let events through one by one: so the next turn falls anywhere into the run.
    m_turnsToWait = upTo(5);
    ++m_depth;
    if (auto* const batch = qobject_cast<BatchDialog*>(dialog)) {
        // How long a run takes is chance, so nothing here draws from the seed.
        m_turnsToWait = 0;
        startTimer(5);
        answerBatch(batch);
    } else {
        startTimer(0);
        --m_actionsLeft;
        m_nestedActions += m_depth > 1 ? 1 : 0;
        dialog ? answer(dialog) : act();
    }
    check();
    --m_depth;
}

void Hands::act()
{
    int all = 0;
    for (const Action& action : m_actions) {
        all += action.weight;
    }
    int place = upTo(all);
    const Action* action = m_actions.begin();
    for (; place >= action->weight; ++action) {
        place -= action->weight;
    }
    note(QLatin1String(action->name));
    action->act();
}

CreatorDropArea* Hands::square() const
{
    return m_program.page->findChild<CreatorDropArea*>();
}

void Hands::note(const QString& action)
{
    m_lastActions += QString(m_depth - 1, QLatin1Char('>')) + action;
    if (m_lastActions.size() > 20) {
        m_lastActions.removeFirst();
    }
}

void Hands::check()
{
    const QString broken = whatIsBroken();
    if (m_trouble.isEmpty() && !broken.isEmpty()) {
        m_trouble = QStringLiteral("seed %1, %2 actions before the end: %3, after %4")
                        .arg(m_seed)
                        .arg(m_actionsLeft)
                        .arg(broken, m_lastActions.join(QStringLiteral(", ")));
        m_actionsLeft = 0;
    }
}

QString Hands::whatIsBroken() const
{
    const QMap<int, BaseNode*>& flow = m_options->flow();
    const auto* const stack = m_options->findChild<QStackedWidget*>();
    if (m_bar->count() != flow.size() || stack->count() != flow.size() + 1) {
        return QStringLiteral("%1 tabs, %2 nodes, %3 pages")
            .arg(m_bar->count())
            .arg(flow.size())
            .arg(stack->count() - 1);
    }
    QSet<const QWidget*> owners;
    for (int i = 0; i < flow.size(); ++i) {
        BaseNode* const node = flow.value(i);
        QWidget* const label = m_bar->tabButton(i, QTabBar::LeftSide);
        if (!node || node->name() != m_bar->tabText(i) || stack->indexOf(node) < 1) {
            return QStringLiteral("tab %1 has no node, another one's, or one without a page")
                .arg(i);
        }
        if (!qobject_cast<TabLabel*>(label)) {
            return QStringLiteral("tab %1 has no label").arg(i);
        }
        owners << node << label;
    }
    if (owners.size() != 2 * flow.size()) {
        return QStringLiteral("tabs share a node or a label");
    }
    const QWidget* const page = flow.value(m_bar->currentIndex());
    // Until the mouse button goes up, a press shows only where it went down.
    if (!m_isDragging && page != (stack->currentIndex() == 0 ? nullptr : stack->currentWidget())) {
        return QStringLiteral("the current page isn't that of the current tab");
    }
    const CommonData* const data = CommonData::instance();
    if (m_depth == 1 &&
        (data->count() != data->items().size() || data->currentIndex() >= qMax(1, data->count()))) {
        return QStringLiteral("photo %1 of %2").arg(data->currentIndex()).arg(data->count());
    }
    return QString();
}

void Hands::press(QAbstractButton* button)
{
    if (button && button->isVisible()) {
        button->click();
    }
}

void Hands::press(const char* name)
{
    press(m_program.button(name));
}

void Hands::choose(QMenu* menu, int first, int count)
{
    QAction* const action = oneOf(menu->actions().mid(first, count));
    if (action && action->isEnabled()) {
        note(action->text());
        action->trigger();
    }
}

void Hands::addNode()
{
    m_bar->count() < kMostNodes ? choose(m_program.addMenu(), 0, -1) : press("PushButtonRemove");
}

void Hands::chooseFavorite(int first, int count)
{
    choose(m_program.page->findChild<QMenu*>(QStringLiteral("FavoritesMenu")), first, count);
}

void Hands::dragTab(int moves)
{
    if (m_isDragging || m_bar->count() == 0) {
        return;
    }
    QPoint place = m_bar->tabRect(upTo(m_bar->count())).center();
    m_isDragging = true;
    QTest::mousePress(m_bar, Qt::LeftButton, Qt::NoModifier, place);
    const int stride = upTo(2) == 0 ? 60 : -60;
    for (; moves > 0; --moves) {
        place += QPoint(stride, 0);
        QMouseEvent move(QEvent::MouseMove, place, m_bar->mapToGlobal(place), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_bar, &move);
    }
    m_isDragging = false;
    QTest::mouseRelease(m_bar, Qt::LeftButton, Qt::NoModifier, place);
}

void Hands::moveSlider()
{
    // The far end of some ranges makes pictures that take their time and show nothing more.
    if (auto* const slider = oneOf(m_program.node()->findChildren<QSlider*>())) {
        slider->setValue(qMin(slider->maximum(), slider->minimum() + upTo(60)));
    }
}

void Hands::setControl()
{
    QWidget* const control = oneOf(m_program.node()->findChildren<QWidget*>());
    if (!control || !control->isVisible() || !control->isEnabled()) {
        return;
    }
    note(QLatin1String(control->metaObject()->className()));
    if (auto* const button = qobject_cast<QAbstractButton*>(control)) {
        press(button);
    } else if (auto* const box = qobject_cast<QComboBox*>(control)) {
        box->setCurrentIndex(upTo(qMax(1, box->count())));
    } else if (auto* const edit = qobject_cast<QLineEdit*>(control)) {
        edit->setText(QString(upTo(4), QLatin1Char('w')));
    } else if (auto* const spinBox = qobject_cast<QSpinBox*>(control)) {
        spinBox->stepBy(upTo(5) - 2);
    } else {
        QTest::keyClick(control, upTo(2) == 0 ? Qt::Key_Space : Qt::Key_Right);
    }
}

void Hands::step()
{
    // The result's own buttons show while the mouse is over it: a click needs no mouse.
    const QWidget* const panels[] = {m_program.page->findChild<ImagePreview*>(), square()};
    const auto name = QLatin1String(upTo(2) == 0 ? "NextImageButton" : "PreviousImageButton");
    panels[upTo(2)]->findChild<QPushButton*>(name)->click();
}

void Hands::dropPhotos()
{
    QList<QUrl> some;
    for (int count = upTo(4); count > 0; --count) {
        some += oneOf(m_photos);
    }
    if (square()->isVisible()) {
        dropUrls(square(), some);
    }
}

void Hands::showBubble()
{
    if (m_bar->count() > 0 && !m_isDragging) {
        QWidget* const label = m_bar->tabButton(upTo(m_bar->count()), QTabBar::LeftSide);
        label->findChild<QPushButton*>(QStringLiteral("ThumbnailPreviewButton"))->click();
    }
}

void Hands::runBatch()
{
    m_batchPlan = upTo(4);
    press("RunBatchButton");
}

void Hands::answer(QDialog* dialog)
{
    note(QLatin1String(dialog->metaObject()->className()));
    const bool accepts = upTo(3) != 0;
    if (auto* const files = qobject_cast<QFileDialog*>(dialog)) {
        files->selectFile(oneOf(m_photos).toLocalFile());
    } else if (qobject_cast<ImageViewDialog*>(dialog)) {
        if (accepts) {
            const auto buttons = dialog->findChildren<QAbstractButton*>();
            press(oneOf(buttons));
            dialog->findChild<QSlider*>()->setValue(upTo(101));
            return;
        }
    } else if (qobject_cast<QMWidgets::InputDialog*>(dialog)) {
        static const QStringList names = {"a", "b & c", "../d", "", "sample.flow", "e\nf"};
        // The number's field is there too, and hidden.
        for (QLineEdit* edit : dialog->findChildren<QLineEdit*>()) {
            if (edit->isVisible()) {
                edit->setText(oneOf(names));
            }
        }
    } else if (auto* const list = dialog->findChild<QListWidget*>()) {
        list->setCurrentRow(upTo(1 + list->count()) - 1);
    } else {
        press(oneOf(dialog->findChildren<QAbstractButton*>()));
        return;
    }
    accepts ? dialog->accept() : dialog->reject();
}

void Hands::answerBatch(BatchDialog* dialog)
{
    auto* const pause = dialog->findChild<QPushButton*>(QStringLiteral("BatchPauseButton"));
    switch (m_batchPlan) {
    case StopIt:
        dialog->findChild<QPushButton*>(QStringLiteral("BatchStopButton"))->click();
        break;
    case CloseIt:
        dialog->reject();
        break;
    case PauseIt:
    case ResumeIt:
        pause->click();
        m_batchPlan = m_batchPlan == PauseIt ? ResumeIt : LetItRun;
        break;
    default:
        break;
    }
}
