#include "scenes/Scenes.h"
#include "Stage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>

namespace
{

constexpr int kCell = 128;
constexpr int kNameWidth = 150;
const QSize kSheet(kNameWidth + 7 * kCell, 1500);

struct Sample {
    const char* name;
    QSize size; ///< an invalid one is the size hint
    const char* text;
};

constexpr int kAny = -1;

const Sample kImageButtons[] = {
    {"IntroButton", {60, 32}, ""},       {"ShareButton", {60, 32}, ""},
    {"JoinButton", {60, 32}, ""},        {"SettingsButton", {60, 32}, ""},
    {"MoreButton", {60, 32}, ""},        {"AppButton", {60, 32}, ""},
    {"MoreAppsButton", {60, 32}, ""},    {"RateButton", {60, 32}, ""},
    {"FitToScreenButton", {44, 44}, ""}, {"ZoomInButton", {44, 44}, ""},
    {"ZoomOutButton", {44, 44}, ""},     {"IconViewButton", {24, 24}, ""},
    {"WMRShrinkButton", {24, 24}, ""},   {"WMRBrowseButton", {24, 24}, ""},
    {"BoldButton", {24, 24}, ""},        {"ItalicButton", {24, 24}, ""},
    {"UnderlinedButton", {24, 24}, ""},  {"ThumbnailPreviewButton", {32, 16}, ""},
    {"PreviewButton", {24, 24}, ""},     {"PreviousImageButton", {}, ""},
    {"NextImageButton", {}, ""},         {"RotateLeftButton", {}, ""},
    {"RotateRightButton", {}, ""},       {"MirrorHButton", {}, ""},
    {"MirrorVButton", {}, ""},
};

const Sample kDrawnButtons[] = {
    {"PushButton", {100, 32}, "Cancel"},
    {"PushButtonAdd", {40, 40}, "+"},
    {"PushButtonRemove", {40, 40}, "-"},
    {"RunBatchButton", {}, "Save"},
    {"DeleteButton", {kAny, 32}, "Delete"},
    {"BatchPauseButton", {}, "Pause"},
    {"BatchStopButton", {}, "Stop"},
    {"SysPreviewButton", {kAny, 32}, "Preview"},
    {"ActualPixelsButton", {kAny, 32}, "Pixels"},
    {"DirectionButton", {16, 16}, ""},
    {"HelpSlideButton", {18, 18}, "3"},
};

/// One widget in all its states, side by side.
class StateRow
{
public:
    StateRow(QPainter& painter, int y)
        : m_painter(painter),
          m_y(y)
    {
    }

    void add(QWidget* widget)
    {
        if (m_column < 0) {
            m_painter.drawText(6, m_y + 20,
                               widget->objectName().isEmpty()
                                   ? QString::fromLatin1(widget->metaObject()->className())
                                   : widget->objectName());
        }
        ++m_column;
        widget->render(&m_painter, QPoint(kNameWidth + m_column * kCell, m_y), QRegion(),
                       QWidget::DrawChildren);
        m_height = qMax(m_height, widget->height());
    }
    void skip() { ++m_column; }
    int height() const { return m_height; }

private:
    QPainter& m_painter;
    int m_y;
    int m_column = -1;
    int m_height = 0;
};

/// As if the mouse were over it or not.
void setHovered(QWidget* widget, bool hovered)
{
    widget->setAttribute(Qt::WA_UnderMouse, hovered);
    // A button also minds where it last saw the mouse.
    QMouseEvent move(QEvent::MouseMove, hovered ? widget->rect().center() : QPointF(-9, -9),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &move);
}

/// Rest, under the mouse, with the keyboard, held down or on, on under the mouse, disabled.
void addStates(StateRow& row, QWidget* widget)
{
    auto* const button = qobject_cast<QAbstractButton*>(widget);
    widget->show();
    row.add(widget);
    setHovered(widget, true);
    row.add(widget);
    setHovered(widget, false);
    widget->setFocus(Qt::TabFocusReason);
    row.add(widget);
    widget->clearFocus();
    if (button) {
        button->setDown(true);
        row.add(widget);
        button->setDown(false);
        button->setCheckable(true);
        button->setChecked(true);
        row.add(widget);
        setHovered(widget, true);
        row.add(widget);
        setHovered(widget, false);
    } else {
        row.skip();
        row.skip();
        row.skip();
    }
    widget->setEnabled(false);
    row.add(widget);
}

QPushButton* makeButton(const Sample& sample, QWidget* host)
{
    auto* button = new QPushButton(QString::fromLatin1(sample.text), host);
    button->setObjectName(QLatin1String(sample.name));
    button->setFlat(true);
    button->ensurePolished();
    const QSize hint = button->sizeHint().expandedTo(button->minimumSizeHint());
    if (sample.size.isValid()) {
        button->setFixedSize(sample.size);
    } else {
        button->resize(sample.size.height() > 0 ? QSize(hint.width(), sample.size.height()) : hint);
    }
    return button;
}

QWidgetList makeFields(QWidget* host)
{
    auto* combo = new QComboBox(host);
    combo->addItem(QStringLiteral("JPEG"));
    auto* check = new QCheckBox(QStringLiteral("Rename"), host);
    auto* slider = new QSlider(Qt::Horizontal, host);
    slider->setTickPosition(QSlider::TicksBothSides);
    slider->setRange(-50, 50);
    slider->setValue(25);
    auto* viewSlider = new QSlider(Qt::Horizontal, host);
    viewSlider->setObjectName(QStringLiteral("ImageViewSlider"));
    viewSlider->setTickPosition(QSlider::TicksBothSides);
    viewSlider->setRange(1, 100);
    auto* list = new QListWidget(host);
    list->addItems({QStringLiteral("First"), QStringLiteral("Second")});
    list->setCurrentRow(0);
    const QWidgetList fields = {combo,
                                new QLineEdit(QStringLiteral("Holiday"), host),
                                new QSpinBox(host),
                                check,
                                slider,
                                viewSlider,
                                list};
    for (QWidget* field : fields) {
        field->ensurePolished();
        field->resize(kCell - 20, field == list ? 70 : field->sizeHint().height());
    }
    return fields;
}

/// Draws the rows on a page of their own and takes its picture.
void shootRows(Stage& stage, const QString& name, const QWidgetList& widgets, QWidget& host)
{
    const double ratio = host.devicePixelRatioF();
    QPixmap sheet(kSheet * ratio);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(QColor(71, 71, 71));
    QPainter painter(&sheet);
    painter.setPen(Qt::white);
    int y = 8;
    for (QWidget* widget : widgets) {
        StateRow row(painter, y);
        addStates(row, widget);
        y += row.height() + 8;
    }
    painter.end();
    QLabel page;
    page.setStyleSheet(QStringLiteral("padding: 0px; border-radius: 0px; background: none;"));
    page.setPixmap(sheet.copy(0, 0, sheet.width(), int(y * ratio)));
    page.resize(kSheet.width(), y);
    page.show();
    stage.shoot(name, &page);
}

} // namespace

void showStates(Stage& stage)
{
    QFrame host;
    host.setObjectName(QStringLiteral("MainPage"));
    host.resize(400, 300);
    host.show();
    host.activateWindow();
    stage.waitFor([&host] { return host.isActiveWindow(); },
                  QStringLiteral("the page of states takes the keyboard"));
    QMenu menu;
    QWidgetList imageButtons;
    for (const Sample& sample : kImageButtons) {
        imageButtons.append(makeButton(sample, &host));
    }
    QWidgetList drawn;
    for (const Sample& sample : kDrawnButtons) {
        drawn.append(makeButton(sample, &host));
    }
    static_cast<QPushButton*>(imageButtons.at(4))->setMenu(&menu);
    static_cast<QPushButton*>(drawn.at(1))->setMenu(&menu);
    shootRows(stage, QStringLiteral("pictures"), imageButtons, host);
    shootRows(stage, QStringLiteral("drawn"), drawn + makeFields(&host), host);
}
