#include "OperationPictures.h"

#include "FileNameOf.h"
#include "flow/Operations.h"
#include "photos/Hills.h"

#include <algorithm>
#include <iterator>
#include <QDir>
#include <QImage>
#include <QPainter>

namespace
{

constexpr QSize kPhotoSize(432, 288);
constexpr int kHalfWidth = 480; ///< room for the photo with its frame
constexpr int kMargin = 16;
constexpr int kQuality = 85;
constexpr QRgb kMat = qRgb(44, 47, 51);

struct Example {
    const char* operation;
    const char* parameters;
    const char* suffix = ""; ///< tells two pictures of one operation apart
};

/// Settings whose effect shows at a glance. docs/operations.md tells them under the pictures.
constexpr Example kExamples[] = {
    {"Brightness, Contrast, Saturation",
     "<Brightness>-10</Brightness><Contrast>25</Contrast><Saturation>80</Saturation>"},
    {"Crop", "<Left>10</Left><Right>30</Right><Top>20</Top><Bottom>15</Bottom>"},
    {"Resize", "<Mode>0</Mode><Width>50</Width><Height>50</Height>"},
    {"Rotate", "<Angle>90</Angle>"},
    {"Mirror", "<Horizontal>yes</Horizontal><Vertical>no</Vertical>"},
    {"Watermark",
     "<Mode>0</Mode><Text>Tessarin</Text><Size>45</Size><Position>BottomRight</Position>"
     "<XOffset>-5</XOffset><YOffset>5</YOffset><Transparency>25</Transparency>"
     "<Color>#ffffff</Color><Background>#000000</Background>"
     "<BackgroundEnabled>yes</BackgroundEnabled><Font>DejaVu Sans</Font><Bold>yes</Bold>"},
    {"Watermark",
     "<Mode>1</Mode><Size>40</Size><Position>BottomLeft</Position><XOffset>4</XOffset>"
     "<YOffset>4</YOffset><Transparency>25</Transparency>",
     "-image"},
    {"Histogram optimizer", "<Left>2</Left><Right>6</Right>"},
    {"Vignetting", "<Radius>65</Radius><Opacity>80</Opacity><Color>#000000</Color>"},
    {"Frame", "<Width>4</Width><Color>#f0ead8</Color>"},
    {"RGB-Order", "<Mode>0</Mode>"},
    {"Blur", "<Radius>10</Radius>"},
    {"Invert", ""},
    {"Binarization", "<Threshold>127</Threshold>"},
    {"Grayscale", ""},
};

QImage sampleAsBatchLoadsIt()
{
    // Painted larger, because the grain of a photo is finer than the pixels of a small one.
    const QImage large = paintHills(kPhotoSize * 3);
    return large.scaled(kPhotoSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_ARGB32);
}

QImage sideBySide(const QImage& before, const QImage& after)
{
    const int height = qMax(before.height(), after.height()) + 2 * kMargin;
    QImage picture(2 * kHalfWidth, height, QImage::Format_RGB32);
    picture.fill(kMat);
    QPainter painter(&picture);
    const auto drawCentred = [&](int middle, const QImage& image) {
        painter.drawImage(middle - image.width() / 2, (height - image.height()) / 2, image);
    };
    drawCentred(kHalfWidth / 2, before);
    drawCentred(kHalfWidth + kHalfWidth / 2, after);
    return picture;
}

bool isShown(const QString& operation)
{
    return std::any_of(std::begin(kExamples), std::end(kExamples), [&](const Example& example) {
        return operation == QLatin1String(example.operation);
    });
}

} // namespace

QString writeOperationPictures(const QString& folder)
{
    const QDir target(folder);
    if (!target.mkpath(QStringLiteral("."))) {
        return QStringLiteral("Can't make the folder ") + folder;
    }
    for (const Operation& operation : operations()) {
        if (!isShown(operation.name)) {
            return QStringLiteral("There is no example of ") + operation.name;
        }
    }
    const QImage before = sampleAsBatchLoadsIt();
    for (const Example& example : kExamples) {
        const QString name = QLatin1String(example.operation);
        const QString parameters =
            QStringLiteral("<Parameters>%1</Parameters>").arg(QLatin1String(example.parameters));
        const QImage after = findOperation(name)->processFromXml(before, parameters);
        const QString file = target.filePath(fileNameOf(name) + QLatin1String(example.suffix) +
                                             QStringLiteral(".jpeg"));
        if (after == before || !sideBySide(before, after).save(file, nullptr, kQuality)) {
            return QStringLiteral("Can't show %1 in %2").arg(name, file);
        }
    }
    return QString();
}
