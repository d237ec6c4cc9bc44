#include "flow/BaseNode.h"
#include "intake/CommonData.h"
#include "preview/Representor.h"
#include "scenes/Scenes.h"
#include "Stage.h"

#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>

namespace
{

/// The large view while it is open.
struct View {
    View(Stage& openStage, QWidget* openDialog)
        : stage(openStage),
          dialog(openDialog),
          slider(stage.find<QSlider>(QStringLiteral("ImageViewSlider"), dialog)),
          picture(stage.find<QLabel>(QStringLiteral("PreviewLabel"), dialog))
    {
    }

    void click(const char* buttonName)
    {
        stage.click(stage.find<QPushButton>(QLatin1String(buttonName), dialog));
    }
    QSize shown() const { return picture->pixmap(Qt::ReturnByValue).size(); }

    Stage& stage;
    QWidget* dialog;
    QSlider* slider;
    QLabel* picture;
};

void waitUntilGrown(View& view)
{
    view.stage.waitUntilGrown(view.dialog);
    const int width = int(0.7f * float(view.dialog->screen()->virtualSize().width()));
    view.stage.check(view.dialog->width() == width,
                     QStringLiteral("the large view has grown to its size"));
    // On a small screen the controls would lie outside.
    view.dialog->resize(view.dialog->size().expandedTo(QSize(560, 440)));
}

void zoom(View& view)
{
    Stage& stage = view.stage;
    const QSize full = stage.result().size();
    view.click("ActualPixelsButton");
    stage.check(view.shown() == full, QStringLiteral("100 percent is the photo's own size"));
    stage.shoot(QStringLiteral("actual"), view.dialog);
    stage.dragSlider(view.slider, 40,
                     [&] { stage.shoot(QStringLiteral("dragging"), view.dialog); });
    auto* const scroll = stage.find<QScrollArea>(view.dialog);
    scroll->horizontalScrollBar()->setValue(scroll->horizontalScrollBar()->maximum() / 2);
    stage.pointer().moveTo(view.slider);
    stage.shoot(QStringLiteral("scrolled"), view.dialog);
    const int before = view.slider->value();
    view.click("ZoomInButton");
    stage.check(view.slider->value() == before - 1, QStringLiteral("the minus reduces"));
    view.click("ZoomOutButton");
    stage.check(view.slider->value() == before, QStringLiteral("the plus enlarges"));
    stage.dragSlider(view.slider, 5, [&] { stage.shoot(QStringLiteral("small"), view.dialog); });
    view.click("FitToScreenButton");
}

/// Brings the mouse over the picture and waits for the arrow.
QPushButton* hoverPicture(View& view)
{
    Stage& stage = view.stage;
    // Without a screen nobody tells the mouse's way into a new window: it has to come from within.
    stage.hover(view.slider);
    stage.hover(stage.find<QScrollArea>(view.dialog));
    auto* const arrow = stage.find<QPushButton>(QStringLiteral("NextImageButton"), view.dialog);
    stage.waitFor([arrow] { return arrow->isVisible(); },
                  QStringLiteral("the mouse shows the arrows"));
    return arrow;
}

void step(View& view)
{
    Stage& stage = view.stage;
    auto* const loading = stage.find<QLabel>(QStringLiteral("ImageLoadingLabel"), view.dialog);
    bool wasShown = false;
    QObject::connect(stage.find<BaseNode>(), &BaseNode::previewChanged, loading, [&] {
        wasShown = loading->isVisible();
        stage.shoot(QStringLiteral("loading"), view.dialog);
    });
    stage.click(hoverPicture(view));
    stage.check(CommonData::instance()->currentIndex() == 1, QStringLiteral("a step goes on"));
    stage.check(wasShown && !loading->isVisible(),
                QStringLiteral("the animation is there while the photo loads"));
    stage.shoot(QStringLiteral("next"), view.dialog);
    QObject::disconnect(stage.find<BaseNode>(), nullptr, loading, nullptr);
}

} // namespace

void viewLarge(Stage& stage)
{
    stage.dropPhotos();
    stage.addOperation(QStringLiteral("Vignetting"));
    auto* const panel = stage.find<Representor>();
    auto* const button = stage.find<QPushButton>(QStringLiteral("PreviewButton"), panel);
    stage.hover(button);
    stage.shoot(QStringLiteral("button"));
    stage.withDialog(button, QStringLiteral("the large view"), [&stage](QWidget* dialog) {
        View view(stage, dialog);
        waitUntilGrown(view);
        stage.check(!CommonData::instance()->previewMode(), QStringLiteral("it is at real size"));
        hoverPicture(view);
        stage.shoot(QStringLiteral("fitted"), dialog);
        zoom(view);
        step(view);
        view.click("SysPreviewButton");
        stage.check(!dialog->isVisible(), QStringLiteral("the large view closes"));
    });
    const QList<QUrl> urls = stage.urls().urls();
    stage.check(!urls.isEmpty() &&
                    QFileInfo(urls.last().toLocalFile()).fileName() == QLatin1String("preview.png"),
                QStringLiteral("the system's viewer gets the picture"));
    stage.check(CommonData::instance()->previewMode(), QStringLiteral("it is at preview size"));
    stage.restPointer();
    stage.shoot(QStringLiteral("after"));
}
