#include "flow/nodes/UCSNode.h"

#include "flow/ColorParameter.h"
#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include <QMWidgets/ColorWidget.h>

#include <QPainter>
#include <QRadialGradient>

namespace
{

constexpr SliderParameter kParameters[] = {
    {"Radius", QT_TRANSLATE_NOOP("UCSNode", "Radius:"), 0, 100, 5, 5, 65, 2, ""},
    {"Opacity", QT_TRANSLATE_NOOP("UCSNode", "Opacity:"), 0, 100, 5, 5, 80, 127, ""},
};
constexpr ColorParameter kColor = {"Color", QT_TRANSLATE_NOOP("UCSNode", "Color:"), Qt::black,
                                   Qt::black};

QColor shade(const QColor& color, int step, int alpha)
{
    return QColor(qMin(color.red() + step, 255), qMin(color.green() + step, 255),
                  qMin(color.blue() + step, 255), alpha);
}

QRadialGradient gradient(int side, int radius, const QColor& color)
{
    const QPointF centre(side / 2, side / 2);
    QRadialGradient result(centre, double(qint64(radius) * side / 100), centre);
    result.setColorAt(0.0, shade(color, 200, 0));
    result.setColorAt(0.5, shade(color, 40, 0));
    result.setColorAt(1.0, shade(color, 0, 255));
    return result;
}

/// The square to be stretched over the image. Errors: null where it would take more than 8 GiB.
QImage paintedSquare(int side, QImage::Format format, int radius, int opacity, const QColor& color)
{
    constexpr int kMostSide = 46340;
    if (side > kMostSide) {
        return QImage();
    }
    QImage result(side, side, format);
    if (result.isNull()) {
        return result;
    }
    result.fill(QColor(255, 255, 255, 0));
    QPainter painter(&result);
    painter.setOpacity(opacity / 100.0);
    painter.setBrush(gradient(side, radius, color));
    painter.setPen(Qt::NoPen);
    const QRect square(0, 0, side, side);
    painter.drawRects(&square, 1);
    return result;
}

} // namespace

UCSNode::UCSNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent)
{
    setNodeIcon(name);
    QFormLayout* const form = addForm();
    m_radius = addSlider(kParameters[0], form);
    m_opacity = addSlider(kParameters[1], form);
    m_color = addColor(kColor, form);
}

void UCSNode::process(QImage& image)
{
    runFilter(image,
              [radius = m_radius->value(), opacity = m_opacity->value(), color = m_color->color()](
                  const QImage& source) { return vignette(source, radius, opacity, color); });
}

QImage UCSNode::processFromXml(const QImage& image, const QString& xml)
{
    const auto [radius, opacity] = readValues(xml, kParameters);
    return vignette(image, radius, opacity, readValue(xml, kColor));
}

QImage UCSNode::vignette(const QImage& image, int radius, int opacity, const QColor& color)
{
    if (image.isNull()) {
        return image;
    }
    const int side = qMax(image.width(), image.height());
    const QImage square = paintedSquare(side, image.format(), radius, opacity, color);
    if (square.isNull()) {
        return image;
    }
    QImage result = image;
    // The painter measures in the image's own pixels, so it must not scale.
    result.setDevicePixelRatio(1.0);
    QPainter painter(&result);
    painter.drawImage(result.rect(), square);
    painter.end();
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}
