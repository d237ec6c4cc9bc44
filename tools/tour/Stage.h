#pragma once

#include "app/MainPage.h"
#include "Camera.h"
#include "Complaints.h"
#include "Pointer.h"
#include "UrlTrap.h"
#include <QMWidgets/App.h>
#include <QMWidgets/DropWidget.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <QImage>
#include <QPointer>
#include <QStringList>

class NodesTabBar;
class QComboBox;
class QMenu;
class QPushButton;
class QSlider;

/// The program, put together as its own main does it, and the hands that work it.
///
/// A verb that can't do its work complains and leaves things as they are, so that a scene goes on
/// to its end; the complaints make the tour fail. Waits end with what they wait for, or with a
/// complaint after five minutes.
class Stage
{
public:
    using Condition = std::function<bool()>;
    using MenuAct = std::function<void(QMenu* menu)>;
    using DialogAct = std::function<void(QWidget* dialog)>;

    /// `photos` are the paths that dropPhotos() drops. `pictures` is the folder of the pictures.
    Stage(int& argc, char** argv, const QStringList& photos, const QString& pictures);
    ~Stage();

    /// Closes the program and opens it anew, with no photos and no flow.
    void open(const QString& sceneName);

    MainPage* page() const;
    QMWidgets::DropWidget* dropWindow() const;
    const QStringList& photos() const { return m_photos; }
    void setPhotos(const QStringList& paths) { m_photos = paths; }
    Camera& camera() { return m_camera; }
    Pointer& pointer() { return m_pointer; }
    const UrlTrap& urls() const { return m_urls; }
    const Complaints& complaints() const { return m_complaints; }

    /// The widget of that class and object name within another one, or within the page.
    template <class Widget> Widget* find(const QString& objectName, const QWidget* within = nullptr)
    {
        auto* const found = (within ? within : pageWidget())->findChild<Widget*>(objectName);
        check(found, QStringLiteral("there is no ") + objectName);
        return found;
    }
    template <class Widget> Widget* find(const QWidget* within = nullptr)
    {
        auto* const found = (within ? within : pageWidget())->findChild<Widget*>();
        check(found,
              QStringLiteral("there is no ") + QLatin1String(Widget::staticMetaObject.className()));
        return found;
    }

    /// Complains unless it holds, and gives it back.
    bool check(bool holds, const QString& what);
    bool waitFor(const Condition& condition, const QString& what);

    void drop(const QStringList& paths, QWidget* target);
    /// Drops all sample photos on the drop window and waits for the page.
    void dropPhotos();
    void click(QWidget* widget);
    void hover(QWidget* widget);
    /// Takes the mouse to a place of the page where nothing answers it.
    void restPointer();
    void press(QWidget* widget, Qt::Key key);
    /// Clicks the button, does `act` in the menu that opens, and closes what is still open.
    void withMenu(QPushButton* button, const MenuAct& act);
    /// The same for a dialog that is modal; `act` has to end it.
    void withDialog(QPushButton* button, const QString& what, const DialogAct& act);
    /// The same for dialogs that come one after the other out of `open`, with an act for each.
    void withDialogs(const std::function<void()>& open, const QString& what,
                     std::initializer_list<DialogAct> acts);
    // What is pressed or chosen by its text is told in English, whatever the language.
    void chooseEntry(QMenu* menu, const QString& english);
    void chooseItem(QComboBox* box, const QString& english);
    /// Clicks the button of a dialog that shows the text and can be seen. A dialog that has none is
    /// closed, since nothing else would end it.
    void clickButton(QWidget* dialog, const QString& english);

    /// Waits until the large view has come to its place: until then it undoes a change of size.
    void waitUntilGrown(const QWidget* largeView);

    void shoot(const QString& name, QWidget* widget = nullptr);
    void shootTogether(const QString& name, const QWidgetList& windows);

    // The flow; operations count from 0.
    QStringList operationNames() const;
    void addOperation(const QString& name);
    void selectOperation(int index);
    /// Drags a tab onto the place of another one; `onTheWay` is called while it hangs in between.
    void dragOperation(int from, int to, const std::function<void()>& onTheWay);
    /// Clicks the check of the options that are shown.
    void switchOperation();
    void removeOperation();
    /// Drags a slider's handle near a value; `onTheWay` is called while it is held there.
    void dragSlider(QSlider* slider, int value, const std::function<void()>& onTheWay);
    /// Drags the slider with that English caption, and goes the last steps by key.
    void setSlider(const QString& caption, int value);
    /// What the flow made of the photo last.
    const QImage& result() const { return m_result; }

private:
    struct Program;

    const QWidget* pageWidget() const;
    NodesTabBar* tabBar() const;
    /// Does something that runs the flow, and waits for the run.
    void expectResult(const std::function<void()>& act, const QString& what);

    Complaints m_complaints;
    QStringList m_photos;
    std::unique_ptr<QMWidgets::App> m_app;
    UrlTrap m_urls;
    Camera m_camera;
    Pointer m_pointer;
    std::unique_ptr<Program> m_program;
    QImage m_result;
    int m_resultCount = 0;
};
