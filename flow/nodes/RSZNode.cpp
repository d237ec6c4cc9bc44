#include "flow/nodes/RSZNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include "intake/CommonData.h"

#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>
#include <utility>

namespace
{

enum Mode { Percentage, MaximumPixels, Pixels };

/// What the sliders measure in.
struct Measure {
    int minimum;
    int maximum;
    int value; ///< what the sliders stand at after a change of mode
    const char* unit;
};
constexpr Measure kPercent = {1, 100, 50, "%"};
constexpr Measure kPixel = {8, 5000, 300, "px"};

constexpr char kModeTag[] = "Mode";
constexpr SliderParameter kParameters[] = {
    {"Width", QT_TRANSLATE_NOOP("RSZNode", "Width:"), kPercent.minimum, kPercent.maximum, 1, 1,
     kPercent.value, 100, kPercent.unit},
    {"Height", QT_TRANSLATE_NOOP("RSZNode", "Height:"), kPercent.minimum, kPercent.maximum, 1, 1,
     kPercent.value, 100, kPercent.unit},
};

/// The longest side of a preview that is scaled to pixels, but see previewSize.
constexpr int kMostPreviewSide = 700;

QSize previewSize(int width, int height)
{
    // Deliberate: one side alone is looked at, so the other may still be longer.
    if (width > kMostPreviewSide) {
        return QSize(kMostPreviewSide, int(height * (double(kMostPreviewSide) / width)));
    }
    if (height > kMostPreviewSide) {
        return QSize(int(width * (double(kMostPreviewSide) / height)), kMostPreviewSide);
    }
    return QSize(width, height);
}

/// The toolkit's scaler sets up tables of up to 16 bytes for each column and row before it finds
/// out that the result doesn't fit. And where one side shrinks while the other grows, it goes over
/// the longer one of both each time: a line of 20000 pixels turned into a column keeps it for half
/// an hour. So the longer sides count, and the tables.
bool isGrowthBeyondReason(const QImage& image, qint64 width, qint64 height)
{
    constexpr double kMostBytes = 2147483648.0;
    const auto columns = double(qMax<qint64>(width, image.width()));
    const auto rows = double(qMax<qint64>(height, image.height()));
    return (width > image.width() || height > image.height()) &&
           4.0 * columns * rows + 16.0 * (columns + rows) > kMostBytes;
}

/// The toolkit scales a large image by way of a premultiplied copy, and leaves the result like
/// that. An image that nobody else holds can be premultiplied where it lies.
QImage scaled(QImage image, const QSize& size)
{
    constexpr qint64 kLargePixels = 1 << 22;
    const bool large = qint64(image.width()) * image.height() >= kLargePixels;
    const bool inPlace = large && image.format() == QImage::Format_ARGB32 && image.isDetached();
    if (inPlace && size != image.size()) {
        image = std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    }
    return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage scaledTo(QImage image, qint64 width, qint64 height)
{
    if (width < 1 || height < 1 || isGrowthBeyondReason(image, width, height)) {
        return QImage();
    }
    return scaled(std::move(image), QSize(int(width), int(height)));
}

QImage scaledTo(QImage image, const QSize& size)
{
    return scaledTo(std::move(image), size.width(), size.height());
}

QImage scaledInto(QImage image, const QSize& box)
{
    if (box.isEmpty()) {
        return QImage();
    }
    const QSize size = image.size().scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return scaledTo(std::move(image), size);
}

} // namespace

RSZNode::RSZNode(const QString& name, QWidget* parent)
    : ParameterNode(name, parent),
      m_mode(new QComboBox)
{
    setNodeIcon(name);
    m_mode->addItem(tr("Percentage"), Percentage);
    m_mode->addItem(tr("Maximum Pixels"), MaximumPixels);
    m_mode->addItem(tr("Pixels"), Pixels);

    QFormLayout* const form = addForm();
    form->addRow(tr("Scale by:"), m_mode);
    bindings().bind(kModeTag, m_mode);
    m_width = addSlider(kParameters[0], form);
    m_height = addSlider(kParameters[1], form);

    connect(m_mode, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &RSZNode::slotComboItemChanged);
}

void RSZNode::process(QImage& image)
{
    runFilter(image, [width = m_width->value(), height = m_height->value(),
                      mode = m_mode->currentData().toInt(),
                      preview = CommonData::instance()->previewMode()](const QImage& source) {
        return scaleImage(source, width, height, mode, preview);
    });
}

QImage RSZNode::processFromXml(QImage&& image, const QString& xml)
{
    const auto [width, height] = readValues(xml, kParameters);
    const int mode = ParameterReader::intValue(xml, kModeTag, Percentage);
    return scaleImage(std::move(image), width, height, mode, false);
}

QImage RSZNode::scaleImage(QImage&& image, int width, int height, int mode, bool preview)
{
    if (image.isNull()) {
        return QImage();
    }
    const auto columns = qint64(width / 100.0 * image.width());
    const auto rows = qint64(height / 100.0 * image.height());
    switch (mode) {
    case Percentage:
        return scaledTo(std::move(image), columns, rows);
    case MaximumPixels:
        return preview ? std::move(image) : scaledInto(std::move(image), QSize(width, height));
    case Pixels:
        return scaledTo(std::move(image),
                        preview ? previewSize(width, height) : QSize(width, height));
    default:
        return std::move(image);
    }
}

void RSZNode::slotComboItemChanged(int index)
{
    if (index == Percentage || index == MaximumPixels || index == Pixels) {
        const Measure& measure = index == Percentage ? kPercent : kPixel;
        for (ComboSlider* slider : {m_width, m_height}) {
            // Quiet, or the flow would run on the old number in the new unit: 5000 percent.
            const QSignalBlocker quiet(slider);
            slider->setRange(measure.minimum, measure.maximum);
            slider->setUnit(QLatin1String(measure.unit));
            slider->setValue(measure.value);
        }
    }
    emit parametersChanged();
}
