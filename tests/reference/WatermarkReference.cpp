#include "reference/WatermarkReference.h"

#include <QFontMetrics>
#include <QPainter>

namespace
{

QRect boxOf(const QSize& photo, int width, int height, const WMRParams& params)
{
    const int lefts[] = {0, (photo.width() - width) / 2, photo.width() - width};
    const int tops[] = {0, (photo.height() - height) / 2, photo.height() - height};
    const int left = lefts[params.position % 3] + params.xOffset * photo.height() / 100 - 2;
    const int top = tops[params.position / 3] - params.yOffset * photo.height() / 100 - 2;
    return QRect(left, top, width + 4, height + 4);
}

void drawText(QPainter& painter, const QSize& photo, const WMRParams& params)
{
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = params.font;
    font.setWeight(params.bold ? QFont::Bold : QFont::Normal);
    font.setItalic(params.italic);
    font.setUnderline(params.underlined);
    font.setPixelSize(
        reference::markFontSize(font, params.text, photo.width() * params.size / 100));
    painter.setFont(font);
    const QFontMetrics metrics(font);
    const QRect box =
        boxOf(photo, metrics.horizontalAdvance(params.text), metrics.height(), params);
    if (params.backgroundEnabled) {
        painter.fillRect(box, QBrush(params.background));
    }
    painter.setPen(params.color);
    painter.drawText(box, Qt::AlignCenter, params.text);
}

void drawLogo(QPainter& painter, const QSize& photo, const WMRParams& params)
{
    if (params.expand) {
        painter.drawImage(QRect(QPoint(0, 0), photo), params.image);
        return;
    }
    const double width = photo.width() * params.size / 100.0;
    const double proportion = double(params.image.height()) / params.image.width();
    const int height = int(proportion * double(float(width)));
    const QRect box = boxOf(photo, int(width), height, params);
    painter.drawImage(
        box, params.image.scaled(box.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
}

} // namespace

namespace reference
{

int markFontSize(QFont font, const QString& text, qint64 width)
{
    const auto isWider = [&](int size) {
        font.setPixelSize(size);
        return width < QFontMetrics(font).horizontalAdvance(text);
    };
    int size = 2;
    while (!isWider(size)) {
        size *= 2;
    }
    size /= 2;
    while (!isWider(size)) {
        size += 1;
    }
    return size;
}

QImage watermark(const QImage& photo, const WMRParams& params)
{
    QImage result = photo;
    QPainter painter(&result);
    painter.setOpacity(1.0 - params.transparency / 100.0);
    if (params.mode == WMRParams::kTextMode) {
        drawText(painter, photo.size(), params);
    } else {
        drawLogo(painter, photo.size(), params);
    }
    painter.end();
    return result;
}

} // namespace reference
