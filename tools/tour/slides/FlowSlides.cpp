#include "flow/BaseNode.h"
#include "flow/FlowsFolder.h"
#include "flow/NodesTabBar.h"
#include "preview/ImagePreview.h"
#include "preview/Representor.h"
#include "slides/SlideScenes.h"
#include "Stage.h"

#include <QFile>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

namespace
{

constexpr int kSaveEntry = 1;                 // of the flows' menu
constexpr QRect kLargeView(24, 92, 687, 440); // on the page, below the button that opens it

/// Lays a button's menu upon it, with an entry in hand, as on a large screen: the one at hand may
/// be too small to open it there in full.
QMenu* unroll(QPushButton* button, int entry)
{
    QMenu* const menu = button->menu();
    menu->ensurePolished();
    menu->resize(menu->sizeHint());
    menu->move(button->mapToGlobal(QPoint(0, -menu->height() - 6)));
    menu->setActiveAction(menu->actions().at(entry));
    return menu;
}

/// Behind the text of most entries.
QPoint entryPlace(const QMenu* menu, QAction* entry)
{
    const QRect place = menu->actionGeometry(entry);
    return {place.right() - 44, place.center().y()};
}

QSlider* lowestSlider(const QWidget* page)
{
    QSlider* lowest = nullptr;
    for (QSlider* const slider : page->findChildren<QSlider*>()) {
        if (slider->isVisible() &&
            (!lowest || slider->mapTo(page, QPoint()).y() > lowest->mapTo(page, QPoint()).y())) {
            lowest = slider;
        }
    }
    return lowest;
}

QWidget* shownOptions(const QWidget* page)
{
    for (BaseNode* const node : page->findChildren<BaseNode*>()) {
        if (node->isVisible()) {
            return node;
        }
    }
    return nullptr;
}

QPushButton* flowsButton(Stage& stage)
{
    // The button shares its object name with others; its menu has one of its own.
    auto* const menu = stage.find<QMenu>(QStringLiteral("FavoritesMenu"));
    return menu ? qobject_cast<QPushButton*>(menu->parentWidget()) : nullptr;
}

void keepFlow(SlideSet& set)
{
    Stage& stage = set.stage;
    const auto choose = [&stage] {
        stage.withMenu(flowsButton(stage), [&stage](QMenu* menu) {
            stage.chooseEntry(menu, QStringLiteral("&Save..."));
        });
    };
    stage.withDialogs(choose, QStringLiteral("the name of the flow"), {[&](QWidget* dialog) {
                          auto* const edit = qobject_cast<QLineEdit*>(dialog->focusWidget());
                          if (stage.check(edit, QStringLiteral("a name can be typed"))) {
                              edit->insert(set.texts.flowName);
                              stage.press(edit, Qt::Key_Return);
                          }
                      }});
}

void takeMenu(SlideSet& set, QPushButton* button, int entry)
{
    QMenu* const menu = unroll(button, entry);
    set.take(Shot({set.stage.page(), menu})
                 .mark(menu)
                 .mark(button)
                 .point(menu, entryPlace(menu, menu->activeAction())));
}

} // namespace

void slideOfAdding(SlideSet& set)
{
    constexpr int kWatermark = 5;
    Stage& stage = set.stage;
    openWithFlow(set, {});
    takeMenu(set, stage.find<QPushButton>(QStringLiteral("PushButtonAdd")), kWatermark);
}

void slideOfTuning(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {strongerColours()});
    QSlider* const slider = lowestSlider(stage.page());
    stage.dragSlider(slider, 80, [&] {
        set.take(Shot({stage.page()})
                     .mark(shownOptions(stage.page()))
                     .light(stage.find<ImagePreview>())
                     .point(slider, stage.pointer().placeIn(slider)));
    });
}

void slideOfOrdering(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {{"Crop", QStringLiteral("<Left>6</Left><Bottom>10</Bottom>")},
                       strongerColours(),
                       {"Vignetting", QStringLiteral("<Opacity>80</Opacity>")},
                       watermark(set),
                       {"Frame", QStringLiteral("<Width>4</Width><Color>#f0ead8</Color>")}});
    auto* const tabs = stage.find<NodesTabBar>();
    stage.dragOperation(4, 3, [&] {
        set.take(Shot({stage.page()}).mark(tabs).point(tabs, stage.pointer().placeIn(tabs)));
    });
}

void slideOfWatermark(SlideSet& set)
{
    openWithFlow(set, {strongerColours(), watermark(set)});
    const QWidget* const page = set.stage.page();
    set.take(
        Shot({set.stage.page()}).mark(shownOptions(page)).light(set.stage.find<ImagePreview>()));
}

void slideOfViewing(SlideSet& set)
{
    Stage& stage = set.stage;
    openWithFlow(set, {strongerColours(), watermark(set)});
    auto* const button =
        stage.find<QPushButton>(QStringLiteral("PreviewButton"), stage.find<Representor>());
    stage.withDialog(button, QStringLiteral("the large view"), [&](QWidget* dialog) {
        stage.waitUntilGrown(dialog);
        dialog->setGeometry(kLargeView.translated(stage.page()->mapToGlobal(QPoint(0, 0))));
        auto* const slider = stage.find<QSlider>(QStringLiteral("ImageViewSlider"), dialog);
        auto* const scroll = stage.find<QScrollArea>(dialog);
        stage.dragSlider(slider, 40, [&] {
            scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->maximum() / 3);
            scroll->verticalScrollBar()->setValue(scroll->verticalScrollBar()->maximum() / 2);
            set.take(Shot({stage.page(), dialog})
                         .mark(button)
                         .mark(slider)
                         .light(dialog)
                         .point(slider, stage.pointer().placeIn(slider)));
        });
        dialog->close();
    });
}

void slideOfFavourites(SlideSet& set)
{
    Stage& stage = set.stage;
    // Flows stand in the menu as the file system names them, in no order to rely on: one is enough.
    QFile::remove(flowsFolder() + QStringLiteral("sample.flow"));
    openWithFlow(set, {strongerColours(), watermark(set)});
    keepFlow(set);
    // A menu that was open on a small screen keeps that size.
    stage.open(QStringLiteral("favourites"));
    openWithFlow(set, {strongerColours(), watermark(set)});
    takeMenu(set, flowsButton(stage), kSaveEntry);
    // The slides of the next language show their own only.
    stage.check(QFile::remove(flowsFolder() + set.texts.flowName + QStringLiteral(".flow")),
                QStringLiteral("the flow was kept"));
}
