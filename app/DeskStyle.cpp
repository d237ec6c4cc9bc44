#include "app/DeskStyle.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <QDialog>
#include <QMenu>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>
#include <QStyleOptionSlider>

namespace
{

constexpr int kHandle = 20; ///< width and height of the handle's picture
constexpr int kGroove = 4;
constexpr int kTick = 3;
constexpr int kTickGap = 3; ///< between groove and ticks
constexpr int kMenuIcon = 24;
constexpr int kMessageSign = 48;
constexpr int kMenuMaskRadius = 4; ///< less than the sheet's radius of 5
constexpr int kCaptionGap = 4;     ///< between an icon and the text left of it
constexpr int kCrowded = 5;        ///< ticks nearer than this run into a bar

bool isHorizontal(const QStyleOptionSlider* slider)
{
    return slider && slider->orientation == Qt::Horizontal;
}

int travel(const QStyleOptionSlider& slider)
{
    return slider.rect.width() - kHandle;
}

/// Where the middle of the handle stands at a value.
int middleAt(const QStyleOptionSlider& slider, int value)
{
    return slider.rect.left() + kHandle / 2 +
           QStyle::sliderPositionFromValue(slider.minimum, slider.maximum, value, travel(slider),
                                           slider.upsideDown);
}

/// The groove ends where the handle's middle does, so that nothing shows beyond a handle at an end.
QRect grooveOf(const QStyleOptionSlider& slider)
{
    return {slider.rect.left() + kHandle / 2, slider.rect.center().y() + 1 - kGroove / 2,
            travel(slider), kGroove};
}

/// The value at which the slider changes nothing: zero, or the end where there is none.
int restOf(const QStyleOptionSlider& slider)
{
    return qBound(slider.minimum, 0, slider.maximum);
}

/// Zero where ticks would run into a bar.
int tickStep(const QStyleOptionSlider& slider)
{
    const qint64 range = qint64(slider.maximum) - slider.minimum;
    const auto isClear = [&](int step) {
        return step > 0 && step * qint64(travel(slider)) >= kCrowded * range;
    };
    const int step = slider.tickInterval > 0 ? slider.tickInterval : slider.singleStep;
    return isClear(step) ? step : isClear(slider.pageStep) ? slider.pageStep : 0;
}

/// The rectangle at the nearest whole pixels of the screen, where its edges are sharp, and as wide
/// as any other of its size: on screens with one and a half pixels to a unit it lies between them.
QRectF onPixels(const QPainter& painter, const QRectF& rect)
{
    const QTransform toScreen = painter.deviceTransform();
    const QRectF there = toScreen.mapRect(rect);
    const QRectF whole(std::round(there.left()), std::round(there.top()), std::round(there.width()),
                       std::round(there.height()));
    return toScreen.inverted().mapRect(whole);
}

void drawTicks(QPainter& painter, const QStyleOptionSlider& slider)
{
    const int step = tickStep(slider);
    if (step == 0 || slider.tickPosition == QSlider::NoTicks) {
        return;
    }
    const QRect groove = grooveOf(slider);
    const auto drawTick = [&](int x, int y) {
        painter.fillRect(onPixels(painter, QRectF(x, y, 1, kTick)),
                         slider.palette.color(QPalette::WindowText));
    };
    // Counted from the value at rest, so that this one has a tick.
    const qint64 rest = restOf(slider);
    const qint64 first = rest - (rest - slider.minimum) / step * step;
    for (qint64 value = first; value <= slider.maximum; value += step) {
        const int x = middleAt(slider, int(value));
        if (slider.tickPosition & QSlider::TicksAbove) {
            drawTick(x, groove.top() - kTickGap - kTick);
        }
        if (slider.tickPosition & QSlider::TicksBelow) {
            drawTick(x, groove.top() + kGroove + kTickGap);
        }
    }
}

void drawGroove(QPainter& painter, const QStyleOptionSlider& slider)
{
    const QRectF groove = onPixels(painter, grooveOf(slider));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(slider.palette.color(QPalette::WindowText));
    painter.drawRoundedRect(onPixels(painter, groove.adjusted(-1, -1, 1, 1)), kGroove / 2 + 1,
                            kGroove / 2 + 1);
    painter.setBrush(QColor(25, 25, 25));
    painter.drawRoundedRect(groove, kGroove / 2, kGroove / 2);

    const int from = middleAt(slider, restOf(slider));
    const int to = middleAt(slider, slider.sliderPosition);
    const QRectF filled(std::min(from, to), groove.top(), std::abs(to - from), groove.height());
    painter.setBrush(slider.palette.color(QPalette::Highlight));
    painter.drawRoundedRect(filled, kGroove / 2, kGroove / 2);
}

} // namespace

DeskStyle::DeskStyle()
    : QProxyStyle(QStringLiteral("fusion"))
{
}

void DeskStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    // Once the window exists it is too late for its attributes.
    if (qobject_cast<QMenu*>(widget) && !widget->testAttribute(Qt::WA_WState_Created)) {
        widget->overrideWindowFlags(widget->windowFlags() | Qt::FramelessWindowHint |
                                    Qt::NoDropShadowWindowHint);
        widget->setAttribute(Qt::WA_TranslucentBackground);
    }
    // In dialogs Enter presses the button that has the keyboard, unless the dialog forbids it; so
    // it does elsewhere.
    auto* const button = qobject_cast<QPushButton*>(widget);
    if (button && !qobject_cast<QDialog*>(button->window())) {
        button->setAutoDefault(true);
    }
}

void DeskStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const
{
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_Slider || !isHorizontal(slider)) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    painter->save();
    drawTicks(*painter, *slider);
    drawGroove(*painter, *slider);
    painter->restore();
}

QRect DeskStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl subControl, const QWidget* widget) const
{
    const auto* const slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_Slider && isHorizontal(slider)) {
        if (subControl == SC_SliderHandle) {
            return {middleAt(*slider, slider->sliderPosition) - kHandle / 2,
                    slider->rect.center().y() + 1 - kHandle / 2, kHandle, kHandle};
        }
        // As wide as the widget: the toolkit takes a handle's way for this less the handle.
        if (subControl == SC_SliderGroove) {
            return slider->rect;
        }
    }
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

void DeskStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool enabled, const QString& text,
                             QPalette::ColorRole textRole) const
{
    // A button that ends its text beside its icon at the right means the right of the screen, which
    // the painter would mirror once more. All others say that they do: by AlignAbsolute.
    constexpr int kOfButton = Qt::AlignRight | Qt::TextShowMnemonic;
    if ((flags & (kOfButton | Qt::AlignAbsolute)) == kOfButton) {
        QProxyStyle::drawItemText(painter, rect.translated(-kCaptionGap, 0),
                                  flags | Qt::AlignAbsolute, palette, enabled, text, textRole);
        return;
    }
    QProxyStyle::drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

QPixmap DeskStyle::generatedIconPixmap(QIcon::Mode mode, const QPixmap& pixmap,
                                       const QStyleOption* option) const
{
    // A photo keeps its colours in a selected row.
    return mode == QIcon::Selected ? pixmap
                                   : QProxyStyle::generatedIconPixmap(mode, pixmap, option);
}

QPixmap DeskStyle::standardPixmap(StandardPixmap picture, const QStyleOption* option,
                                  const QWidget* widget) const
{
    // By way of an icon, which takes the picture's twin on a dense screen.
    const auto sign = [](const QString& path) {
        return QIcon(path).pixmap(kMessageSign, kMessageSign);
    };
    switch (picture) {
    case SP_MessageBoxInformation:
        return sign(QStringLiteral(":/message_information.png"));
    case SP_MessageBoxWarning:
        return sign(QStringLiteral(":/message_warning.png"));
    case SP_MessageBoxCritical:
        return sign(QStringLiteral(":/message_critical.png"));
    case SP_MessageBoxQuestion:
        return sign(QStringLiteral(":/message_question.png"));
    default:
        return QProxyStyle::standardPixmap(picture, option, widget);
    }
}

int DeskStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* returned) const
{
    auto* const mask = qstyleoption_cast<QStyleHintReturnMask*>(returned);
    if (hint == SH_Menu_Mask && option && mask) {
        // For screens on which windows can't be seen through: as far out as the frame's soft edge.
        QPainterPath frame;
        frame.addRoundedRect(option->rect, kMenuMaskRadius, kMenuMaskRadius);
        mask->region = QRegion(frame.toFillPolygon().toPolygon());
        return true;
    }
    return QProxyStyle::styleHint(hint, option, widget, returned);
}

int DeskStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const
{
    switch (metric) {
    case PM_SliderLength:
    case PM_SliderControlThickness:
        return kHandle;
    case PM_SmallIconSize:
        // The sheet's menus ask for it without naming a widget.
        return !widget || qobject_cast<const QMenu*>(widget)
                   ? kMenuIcon
                   : QProxyStyle::pixelMetric(metric, option, widget);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}
