#include "flow/nodes/RSZNode.h"

#include "flow/ComboSlider.h"
#include "flow/SliderParameter.h"
#include "intake/CommonData.h"

#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>

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

QImage scaledTo(const QImage& image, qint64 width, qint64 height)
{
    if (width < 1 || height < 1 || isGrowthBeyondReason(image, width, height)) {
        return QImage();
    }
    return image.scaled(int(width), int(height), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage scaledTo(const QImage& image, const QSize& size)
{
    return scaledTo(image, size.width(), size.height());
}

QImage scaledInto(const QImage& image, const QSize& box)
{
    if (box.isEmpty()) {
        return QImage();
    }
    return scaledTo(image, image.size().scaled(box, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
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

QImage RSZNode::processFromXml(const QImage& image, const QString& xml)
{
    const auto [width, height] = readValues(xml, kParameters);
    const int mode = ParameterReader::intValue(xml, kModeTag, Percentage);
    return scaleImage(image, width, height, mode, false);
}

QImage RSZNode::scaleImage(const QImage& image, int width, int height, int mode, bool preview)
{
    if (image.isNull()) {
        return image;
    }
    switch (mode) {
    case Percentage:
        return scaledTo(image, qint64(width / 100.0 * image.width()),
                        qint64(height / 100.0 * image.height()));
    case MaximumPixels:
        return preview ? image : scaledInto(image, QSize(width, height));
    case Pixels:
        return scaledTo(image, preview ? previewSize(width, height) : QSize(width, height));
    default:
        return image;
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
