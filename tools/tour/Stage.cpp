#include "Stage.h"

#include "app/Startup.h"
#include "Attendant.h"
#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "intake/ItemsModel.h"
#include "ShownText.h"
#include "support/DropEvents.h"
#include <QMWidgets/PromoMenuBar.h>

#include <QAbstractAnimation>
#include <QAbstractItemView>
#include <QAction>
#include <QComboBox>
#include <QMenu>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QUrl>
#include <vector>

namespace
{

/// Milliseconds: long, since a busy machine takes its time, and only a failure uses it up.
constexpr int kPatience = 5 * 60000;

QMWidgets::App* makeApp(int& argc, char** argv)
{
    prepareProcess();
    return new QMWidgets::App(argc, argv, kOrganizationName, kApplicationName);
}

} // namespace

struct Stage::Program {
    MainPage page{nullptr};
    QMWidgets::DropWidget dropWindow{nullptr};
};

Stage::Stage(int& argc, char** argv, const QStringList& photos, const QString& pictures)
    : m_photos(photos),
      m_app(makeApp(argc, argv)),
      m_camera(pictures)
{
    m_complaints.listenToToolkit();
    // Windows close and open between the scenes.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    setUpApplication(*m_app);
    // They would open in the middle of any scene; their own scenes ask for them.
    m_app->setSettingsValue(QStringLiteral("NeverShowItAgain"), true);
    m_app->setSettingsValue(QStringLiteral("AutoReminder"), false);
}

Stage::~Stage()
{
    m_program.reset();
}

void Stage::open(const QString& sceneName)
{
    m_complaints.setScene(sceneName);
    m_camera.startScene(sceneName);
    m_program.reset();
    CommonData* const data = CommonData::instance();
    data->model()->setItems({});
    data->setCount(0);
    data->setCurrentIndex(0);
    data->setCurrentName(QString());
    m_result = QImage();
    m_resultCount = 0;

    m_program = std::make_unique<Program>();
    preparePage(*m_app, m_program->page);
    openDropWindow(*m_app, m_program->page, m_program->dropWindow);
    const QPoint corner = QGuiApplication::primaryScreen()->availableGeometry().topLeft();
    m_program->page.move(corner);
    QObject::connect(find<NodesOptionsPanel>(), &NodesOptionsPanel::imageChanged, page(),
                     [this](const QImage& image) {
                         m_result = image;
                         ++m_resultCount;
                     });
    check(QTest::qWaitForWindowExposed(dropWindow(), kPatience),
          QStringLiteral("the drop window opens"));
}

MainPage* Stage::page() const
{
    return &m_program->page;
}

const QWidget* Stage::pageWidget() const
{
    return page();
}

QMWidgets::DropWidget* Stage::dropWindow() const
{
    return &m_program->dropWindow;
}

bool Stage::check(bool holds, const QString& what)
{
    if (!holds) {
        m_complaints.add(what);
    }
    return holds;
}

bool Stage::waitFor(const Condition& condition, const QString& what)
{
    return check(QTest::qWaitFor(condition, kPatience), QStringLiteral("waited in vain: ") + what);
}

void Stage::drop(const QStringList& paths, QWidget* target)
{
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    const bool isTaken = dropUrls(target, urls) == Qt::CopyAction;
    check(isTaken == !urls.isEmpty(), QStringLiteral("a drag of photos is accepted"));
}

void Stage::dropPhotos()
{
    expectResult([this] { drop(m_photos, dropWindow()); }, QStringLiteral("the first photo"));
    check(QTest::qWaitForWindowExposed(page(), kPatience), QStringLiteral("the page opens"));
    check(!dropWindow()->isVisible(), QStringLiteral("the drop window goes"));
    restPointer();
}

void Stage::expectResult(const std::function<void()>& act, const QString& what)
{
    const int before = m_resultCount;
    act();
    waitFor([this, before] { return m_resultCount > before; }, what);
}

void Stage::click(QWidget* widget)
{
    if (widget &&
        check(widget->isEnabled(), widget->objectName() + QStringLiteral(" is enabled"))) {
        m_pointer.click(widget);
    }
}

void Stage::hover(QWidget* widget)
{
    if (widget) {
        m_pointer.moveTo(widget);
    }
}

void Stage::restPointer()
{
    hover(find<QMWidgets::PromoMenuBar>());
}

void Stage::press(QWidget* widget, Qt::Key key)
{
    if (widget) {
        QTest::keyClick(widget, key);
    }
}

void Stage::withMenu(QPushButton* button, const MenuAct& act)
{
    if (!button) {
        return;
    }
    QMenu* const menu = button->menu();
    if (!check(menu, button->objectName() + QStringLiteral(" has a menu"))) {
        return;
    }
    Attendant attendant(
        QStringLiteral("the menu of ") + button->objectName(), [menu] { return menu; },
        [menu, &act](QWidget*) {
            act(menu);
            menu->close();
        },
        m_complaints);
    click(button);
}

void Stage::withDialog(QPushButton* button, const QString& what, const DialogAct& act)
{
    if (button) {
        withDialogs([this, button] { click(button); }, what, {act});
    }
}

void Stage::withDialogs(const std::function<void()>& open, const QString& what,
                        std::initializer_list<DialogAct> acts)
{
    QPointer<QWidget> last;
    int done = 0;
    std::vector<std::unique_ptr<Attendant>> attendants;
    for (const DialogAct& act : acts) {
        const int turn = int(attendants.size());
        const auto find = [&last, &done, turn]() -> QWidget* {
            QWidget* const dialog = QApplication::activeModalWidget();
            return turn == done && dialog != last ? dialog : nullptr;
        };
        const auto answer = [&last, &done, &act](QWidget* dialog) {
            last = dialog;
            ++done;
            act(dialog);
        };
        attendants.push_back(std::make_unique<Attendant>(what, find, answer, m_complaints));
    }
    open();
}

void Stage::chooseEntry(QMenu* menu, const QString& english)
{
    const QString text = shownText(menu, english);
    for (QAction* const action : menu->actions()) {
        if (action->text() != text) {
            continue;
        }
        const QPoint place = menu->actionGeometry(action).center();
        if (menu->rect().contains(place)) {
            m_pointer.click(menu, place);
        } else {
            // A menu that is higher than the screen scrolls.
            menu->setActiveAction(action);
            press(menu, Qt::Key_Return);
        }
        return;
    }
    check(false, QStringLiteral("the menu has an entry ") + text);
}

void Stage::chooseItem(QComboBox* box, const QString& english)
{
    const QString text = shownText(box, english);
    const int row = box ? box->findText(text) : -1;
    if (!check(row >= 0, QStringLiteral("there is a choice ") + text)) {
        return;
    }
    m_pointer.click(box);
    QAbstractItemView* const list = box->view();
    if (!waitFor([list] { return list->isVisible(); }, QStringLiteral("the list of choices"))) {
        return;
    }
    const int way = row - list->currentIndex().row();
    for (int i = 0; i < qAbs(way); ++i) {
        press(list, way > 0 ? Qt::Key_Down : Qt::Key_Up);
    }
    press(list, Qt::Key_Return);
    waitFor([box, list, &text] { return !list->isVisible() && box->currentText() == text; },
            QStringLiteral("the choice of ") + text);
}

void Stage::clickButton(QWidget* dialog, const QString& english)
{
    for (QPushButton* const button : dialog->findChildren<QPushButton*>()) {
        if (button->isVisible() && button->text() == shownText(button, english)) {
            click(button);
            return;
        }
    }
    check(false, QStringLiteral("there is a button ") + english);
    dialog->close();
}

void Stage::waitUntilGrown(const QWidget* largeView)
{
    // The animation goes when it has ended.
    waitFor([largeView] { return !largeView->findChild<QAbstractAnimation*>(); },
            QStringLiteral("the large view grows"));
}

void Stage::shoot(const QString& name, QWidget* widget)
{
    check(m_camera.shoot(name, widget ? widget : page()), QStringLiteral("picture ") + name);
}

void Stage::shootTogether(const QString& name, const QWidgetList& windows)
{
    check(m_camera.shootTogether(name, windows), QStringLiteral("picture ") + name);
}
