#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

/// What a watermark is drawn from. Sizes are percents of the photo, so one record marks photos of
/// all sizes in proportion. Numbers may be any; the ranges told are those of the node's controls.
///
/// A new record holds what the batch takes where its text tells nothing, not what a new node
/// starts with.
struct WMRParams {
    static constexpr int kTextMode = 0;
    static constexpr int kImageMode = 1;
    static constexpr int kSizeFallback = 0;
    static constexpr int kTransparencyFallback = 127;

    int mode = kTextMode; ///< any other than the two draws nothing
    QString text;         ///< empty for no mark
    int xOffset = 0;      ///< to the right, in percent of the photo's height, -33 to 33
    int yOffset = 0;      ///< up, in percent of the photo's height, -33 to 33
    QFont font;           ///< only its family counts
    bool bold = false;
    bool italic = false;
    bool underlined = false;
    int size = kSizeFallback;                 ///< of the photo's width, 1 to 100
    int position = 8;                         ///< a Direction; any other number is the top left
    int transparency = kTransparencyFallback; ///< 0 opaque, 100 and more invisible
    QColor color = Qt::white;
    QColor background = Qt::black;
    bool backgroundEnabled = true;
    bool expand = false; ///< an image covers the whole photo; a text takes no notice
    QImage image;        ///< null for no mark
    QString imageName;   ///< shown beside the image, not drawn

    /// The record that a parameter text tells. The image is read only in image mode.
    static WMRParams fromXml(const QString& xml);
};

/// What the node and the batch read and write alike.
namespace WMRXml
{

/// The parameters' elements.
constexpr char kMode[] = "Mode";
constexpr char kSize[] = "Size";
constexpr char kText[] = "Text";
constexpr char kPosition[] = "Position";
constexpr char kExpand[] = "Expand";
constexpr char kBold[] = "Bold";
constexpr char kItalic[] = "Italic";
constexpr char kUnderlined[] = "Underlined";
constexpr char kXOffset[] = "XOffset";
constexpr char kYOffset[] = "YOffset";
constexpr char kTransparency[] = "Transparency";
constexpr char kColor[] = "Color";
constexpr char kBackground[] = "Background";
constexpr char kBackgroundEnabled[] = "BackgroundEnabled";
constexpr char kFont[] = "Font";
constexpr char kImageData[] = "ImageData";
constexpr char kImageName[] = "ImageName";

/// The default mark's name, which alone stands for that mark: under it no image is written, and
/// none but that mark is drawn.
QString defaultMarkName();
QImage defaultMark();

/// A position is told by a word. Errors: false for any other word, and the position as it was.
bool readPosition(const QString& word, int& position);
/// Errors: an empty text for a number that is no position.
QString positionWord(int position);

/// A font is told by its family, and is the same wherever it is made of it.
QFont readFont(const QString& family);

/// An empty text leaves the image as it is. Errors: a null image for a text that holds none.
void readImage(const QString& text, QImage& image);
/// What a parameter text holds for a logo of that name, and the image that is read from it.
QString imageText(const QImage& logo, const QString& name);
QImage imageOf(const QImage& logo, const QString& name);
/// The image as it comes out of a parameter text again: some files hold pixels, or a density, that
/// a text tells in another way.
QImage imageAsTold(const QImage& image);

} // namespace WMRXml
