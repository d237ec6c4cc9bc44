#include "slides/SlidePainter.h"

#include "slides/Drawing.h"
#include "slides/Shot.h"

#include <algorithm>
#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

namespace
{

// The help shows a slide at a quarter of its size, so everything that is to be read is large.
constexpr int kMargin = 65; // leaves twice the width of the page, which is shown pixel by pixel
constexpr QRect kBadge(kMargin, 70, 112, 112);
constexpr QRect kCaption(kMargin + 148, 36, 1600 - 2 * kMargin - 148, 180);
constexpr QRect kBody(kMargin, 250, 1600 - 2 * kMargin, 878);
constexpr int kCaptionHeight = 68; // pixels of the font
constexpr int kCaptionLines = 2;
constexpr int kNumberHeight = 62;
constexpr int kRule = 226; // the line under the caption
constexpr int kSteps = 1160;
constexpr int kFade = 44;
constexpr int kFrame = 7;
constexpr double kCorner = 16;
constexpr int kFrameGap = 4; // logical pixels between a place and its frame
constexpr int kViewGap = 22; // logical pixels between the marks and the edge of the view
constexpr QRgb kAccent = qRgb(0xff, 0xb0, 0x2e);

/// What of the shot is shown where, and how large.
struct View {
    QRectF part;   ///< of the shot, logical
    QRectF target; ///< on the slide
    double scale;  ///< slide pixels for each logical one
    bool cutAbove;
    bool cutBelow;

    QPointF onSlide(const QPointF& place) const
    {
        return target.topLeft() + (place - part.topLeft()) * scale;
    }
    QRectF onSlide(const QRectF& place) const
    {
        return {onSlide(place.topLeft()), place.size() * scale};
    }
};

QRectF united(const QVector<QRect>& places)
{
    QRectF all;
    for (const QRect& place : places) {
        all |= place;
    }
    return all;
}

View viewOf(const Shot& shot)
{
    const QSizeF whole = shot.size();
    QRectF focus = united(shot.marks() + shot.lights());
    focus = focus.isEmpty()
                ? QRectF(QPointF(0, 0), whole)
                : focus.adjusted(0, -kViewGap, 0, kViewGap) & QRectF(QPointF(0, 0), whole);
    View view;
    view.scale = qMin(shot.picture().devicePixelRatioF(),
                      qMin(kBody.width() / focus.width(), kBody.height() / focus.height()));
    view.part.setSize({qMin(whole.width(), kBody.width() / view.scale),
                       qMin(whole.height(), kBody.height() / view.scale)});
    view.part.moveCenter(focus.center());
    view.part.moveLeft(qBound(0.0, view.part.left(), whole.width() - view.part.width()));
    // Whole pixels, or the picture would be smeared between them.
    view.part.moveTop(qRound(qBound(0.0, view.part.top(), whole.height() - view.part.height())));
    view.target.setSize((view.part.size() * view.scale).toSize());
    view.target.moveCenter(QRectF(kBody).center());
    view.target.moveTopLeft(view.target.topLeft().toPoint());
    view.cutAbove = view.part.top() > 0.5;
    view.cutBelow = view.part.bottom() < whole.height() - 0.5;
    return view;
}

void drawDesk(QPainter& painter)
{
    const QRect all(QPoint(0, 0), SlidePainter::kSize);
    QRadialGradient lamp(QPointF(0.3 * all.width(), -0.1 * all.height()), 1.2 * all.width());
    lamp.setColorAt(0, qRgb(70, 70, 72));
    lamp.setColorAt(1, qRgb(24, 24, 26));
    painter.fillRect(all, lamp);

    QLinearGradient rule(0, 0, all.width(), 0);
    rule.setColorAt(0, QColor(255, 176, 46, 0));
    rule.setColorAt(0.25, QColor(255, 176, 46, 200));
    rule.setColorAt(1, QColor(255, 176, 46, 0));
    painter.fillRect(QRect(0, kRule, all.width(), 3), rule);
}

bool fits(const QStringList& lines)
{
    const QFontMetrics metrics(Drawing::font(kCaptionHeight, true));
    return lines.size() <= kCaptionLines &&
           std::all_of(lines.begin(), lines.end(), [&metrics](const QString& line) {
               return metrics.horizontalAdvance(line) <= kCaption.width();
           });
}

void drawCaption(QPainter& painter, const QStringList& lines, int number)
{
    painter.setPen(QPen(QColor(kAccent), 6));
    painter.setBrush(QColor(20, 20, 22));
    painter.drawEllipse(QRectF(kBadge).adjusted(3, 3, -3, -3));
    painter.setFont(Drawing::font(number < 10 ? kNumberHeight : kNumberHeight - 8, true));
    painter.setPen(QColor(kAccent));
    painter.drawText(kBadge, Qt::AlignCenter, QString::number(number));

    const QFont captionFont = Drawing::font(kCaptionHeight, true);
    const QFontMetrics metrics(captionFont);
    painter.setFont(captionFont);
    painter.setPen(Qt::white);
    const int lineHeight = kCaption.height() / kCaptionLines;
    const int capHeight = metrics.capHeight();
    int baseline = kBadge.center().y() - (lines.size() - 1) * lineHeight / 2 + capHeight / 2;
    for (const QString& line : lines) {
        painter.drawText(kCaption.left(), baseline, line);
        baseline += lineHeight;
    }
}

/// How far the road has come.
void drawSteps(QPainter& painter, int number, int count)
{
    constexpr int width = 44;
    constexpr int gap = 14;
    int left = (SlidePainter::kSize.width() - count * (width + gap) + gap) / 2;
    painter.setPen(Qt::NoPen);
    for (int i = 1; i <= count; ++i) {
        painter.setBrush(i <= number ? QColor(kAccent) : QColor(86, 86, 88));
        painter.drawRoundedRect(QRect(left, kSteps, width, 8), 4, 4);
        left += width + gap;
    }
}

/// No shadow falls where the window goes on.
void drawShadow(QPainter& painter, const View& view)
{
    Drawing::drawShadow(
        painter, view.target.adjusted(0, view.cutAbove ? kFade : 0, 0, view.cutBelow ? -kFade : 0),
        24);
}

/// Lets an edge where the window goes on beyond the view fade away.
void fade(QPainter& painter, const QRectF& edge, double from, double to)
{
    QLinearGradient gradient(0, from, 0, to);
    gradient.setColorAt(0, QColor(0, 0, 0, 0));
    gradient.setColorAt(1, QColor(0, 0, 0, 255));
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(edge, gradient);
}

QRectF framed(const View& view, const QRect& place)
{
    return view.onSlide(QRectF(place).adjusted(-kFrameGap, -kFrameGap, kFrameGap, kFrameGap));
}

/// The view with everything dimmed that isn't marked.
QImage dimmedView(const Shot& shot, const View& view)
{
    QImage image(SlidePainter::kSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const double ratio = shot.picture().devicePixelRatioF();
    const QRect part = QRectF(view.part.topLeft() * ratio, view.part.size() * ratio).toRect();
    const QImage picture = shot.picture().toImage().copy(part).scaled(
        view.target.size().toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    QImage plain = picture;
    plain.setDevicePixelRatio(1);
    painter.drawImage(view.target.topLeft(), plain);

    QPainterPath dim;
    dim.addRect(view.target);
    QPainterPath bright;
    const auto brighten = [&bright](const QRectF& place, double radius) {
        QPainterPath one;
        one.addRoundedRect(place, radius, radius);
        bright = bright.united(one);
    };
    for (const QRect& place : shot.marks()) {
        brighten(framed(view, place), kCorner);
    }
    for (const QRect& place : shot.lights()) {
        brighten(view.onSlide(QRectF(place)), kCorner / 2);
    }
    if (!bright.isEmpty()) {
        painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
        painter.fillPath(dim.subtracted(bright), QColor(10, 10, 12, 135));
    }
    QRectF edge = view.target;
    if (view.cutAbove) {
        edge.setHeight(kFade);
        fade(painter, edge, edge.top(), edge.bottom());
    }
    edge = view.target;
    if (view.cutBelow) {
        edge.setTop(edge.bottom() - kFade);
        fade(painter, edge, edge.bottom(), edge.top());
    }
    return image;
}

void drawFrames(QPainter& painter, const Shot& shot, const View& view)
{
    painter.setBrush(Qt::NoBrush);
    for (const QRect& place : shot.marks()) {
        const QRectF frame = framed(view, place);
        painter.setPen(QPen(QColor(0, 0, 0, 90), kFrame + 8));
        painter.drawRoundedRect(frame, kCorner, kCorner);
        painter.setPen(QPen(QColor(kAccent), kFrame));
        painter.drawRoundedRect(frame, kCorner, kCorner);
    }
}

void drawPointer(QPainter& painter, const QPointF& tip)
{
    const QPolygonF arrow({{0, 0}, {0, 62}, {14, 49}, {24, 72}, {35, 67}, {25, 45}, {44, 45}});
    painter.save();
    painter.translate(tip);
    painter.scale(1.15, 1.15);
    painter.translate(5, 7);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 80));
    painter.drawPolygon(arrow);
    painter.translate(-5, -7);
    painter.setPen(QPen(QColor(20, 20, 22), 4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::white);
    painter.drawPolygon(arrow);
    painter.restore();
}

} // namespace

QImage SlidePainter::draw(const Shot& shot, const QString& caption, int number, int count)
{
    const QStringList lines = caption.split(QLatin1Char('\n'));
    if (!fits(lines)) {
        return QImage();
    }
    QImage slide(kSize, QImage::Format_RGB32);
    QPainter painter(&slide);
    painter.setRenderHint(QPainter::Antialiasing);
    drawDesk(painter);
    drawCaption(painter, lines, number);
    drawSteps(painter, number, count);
    const View view = viewOf(shot);
    if (!shot.isFree()) {
        drawShadow(painter, view);
    }
    painter.drawImage(0, 0, dimmedView(shot, view));
    drawFrames(painter, shot, view);
    if (shot.hasPointer()) {
        drawPointer(painter, view.onSlide(QPointF(shot.pointer())));
    }
    return slide;
}
