#include "flow/nodes/WMRParams.h"

#include "flow/Direction.h"
#include "flow/ParameterReader.h"
#include <MGraphX/GraphX.h>
#include <MGraphX/ImageLike.h>
#include <MGraphX/OpaqueScaling.h>

#include <cstring>
#include <iterator>

using MGraphX::GraphX;

namespace
{

struct Element {
    const char* tag;
    void (*read)(const QString& text, WMRParams& params);
};

template <int WMRParams::*field> void readNumber(const QString& text, WMRParams& params)
{
    ParameterReader::readInt(text, params.*field);
}

template <bool WMRParams::*field> void readYesNo(const QString& text, WMRParams& params)
{
    params.*field = ParameterReader::readYesNo(text);
}

template <QColor WMRParams::*field> void readColor(const QString& text, WMRParams& params)
{
    params.*field = ParameterReader::readColor(text);
}

template <QString WMRParams::*field> void readText(const QString& text, WMRParams& params)
{
    params.*field = text;
}

void readPositionField(const QString& text, WMRParams& params)
{
    WMRXml::readPosition(text, params.position);
}

void readFontField(const QString& text, WMRParams& params)
{
    params.font = WMRXml::readFont(text);
}

const Element kElements[] = {
    {WMRXml::kMode, readNumber<&WMRParams::mode>},
    {WMRXml::kSize, readNumber<&WMRParams::size>},
    {WMRXml::kText, readText<&WMRParams::text>},
    {WMRXml::kPosition, readPositionField},
    {WMRXml::kExpand, readYesNo<&WMRParams::expand>},
    {WMRXml::kBold, readYesNo<&WMRParams::bold>},
    {WMRXml::kItalic, readYesNo<&WMRParams::italic>},
    {WMRXml::kUnderlined, readYesNo<&WMRParams::underlined>},
    {WMRXml::kXOffset, readNumber<&WMRParams::xOffset>},
    {WMRXml::kYOffset, readNumber<&WMRParams::yOffset>},
    {WMRXml::kTransparency, readNumber<&WMRParams::transparency>},
    {WMRXml::kColor, readColor<&WMRParams::color>},
    {WMRXml::kBackground, readColor<&WMRParams::background>},
    {WMRXml::kBackgroundEnabled, readYesNo<&WMRParams::backgroundEnabled>},
    {WMRXml::kFont, readFontField},
    {WMRXml::kImageName, readText<&WMRParams::imageName>},
};

/// In the order of Direction.
const char* const kPositionWords[] = {"TopLeft",    "TopMiddle",    "TopRight",
                                      "MiddleLeft", "Middle",       "MiddleRight",
                                      "BottomLeft", "BottomMiddle", "BottomRight"};
static_assert(std::size(kPositionWords) == BottomRight + 1);

QString pngText(const QImage& image)
{
    return GraphX::imageToDataUrl(image, QStringLiteral("PNG"), -1);
}

/// Whether PNG keeps format and pixels as they are. It keeps them of more formats than these.
bool isKeptByPng(const QImage& image)
{
    switch (image.format()) {
    case QImage::Format_ARGB32:
    case QImage::Format_Grayscale8:
        return true;
    case QImage::Format_RGB32:
        return MGraphX::isOpaque(image); // the unused byte comes back as 255
    default:
        return false;
    }
}

/// The pixels of one image with what the other, of the same format, knows besides its pixels.
QImage pixelsWith(const QImage& pixels, const QImage& rest)
{
    QImage image = MGraphX::imageLike(rest, pixels.size(), pixels.format());
    const int rows = image.height(); // none without memory
    for (int y = 0; y < rows; ++y) {
        std::memcpy(image.scanLine(y), pixels.constScanLine(y),
                    (size_t(pixels.width()) * size_t(pixels.depth()) + 7) / 8);
    }
    return image;
}

} // namespace

WMRParams WMRParams::fromXml(const QString& xml)
{
    WMRParams params;
    params.imageName = WMRXml::defaultMarkName();
    QString imageData;
    ParameterReader::forEachElement(xml, [&](const QString& tag, const QString& value) {
        if (tag == QLatin1String(WMRXml::kImageData) && !value.isEmpty()) {
            imageData = value;
        }
        for (const Element& element : kElements) {
            if (tag == QLatin1String(element.tag)) {
                element.read(value, params);
            }
        }
    });
    if (params.mode == kImageMode) {
        params.image = WMRXml::defaultMark();
        WMRXml::readImage(imageData, params.image);
    }
    return params;
}

namespace WMRXml
{

QString defaultMarkName()
{
    return QStringLiteral("corvane.png");
}

QImage defaultMark()
{
    // Decoded once: each run of the chain asks for it.
    static const QImage mark(QLatin1String(":/") + defaultMarkName());
    return mark;
}

bool readPosition(const QString& word, int& position)
{
    for (int i = 0; i < int(std::size(kPositionWords)); ++i) {
        if (word == QLatin1String(kPositionWords[i])) {
            position = i;
            return true;
        }
    }
    return false;
}

QString positionWord(int position)
{
    const bool known = position >= 0 && position < int(std::size(kPositionWords));
    return known ? QString::fromLatin1(kPositionWords[position]) : QString();
}

QFont readFont(const QString& family)
{
    return QFont(family, -1, -1, false);
}

void readImage(const QString& text, QImage& image)
{
    if (!text.isEmpty()) {
        image = GraphX::imageFromDataUrl(text);
    }
}

QString imageText(const QImage& logo, const QString& name)
{
    return name == defaultMarkName() ? QString() : pngText(logo);
}

QImage imageOf(const QImage& logo, const QString& name)
{
    return name == defaultMarkName() ? defaultMark() : logo;
}

QImage imageAsTold(const QImage& image)
{
    // One pixel shows what becomes of the rest. To encode all of a large logo takes seconds.
    const bool isKept = isKeptByPng(image);
    const QImage sample = isKept ? image.copy(0, 0, 1, 1) : image;
    const QImage told = GraphX::imageFromDataUrl(pngText(sample));
    if (told.isNull()) {
        return image;
    }
    return isKept ? pixelsWith(image, told) : told;
}

} // namespace WMRXml
