#pragma once

#include <QColor>
#include <QImage>
#include <QRect>
#include <QSize>
#include <QString>

namespace MGraphX
{

/// The operations on photos. Each makes a new image and leaves its source as it is.
/// Shape: 32 bits a pixel, words with alpha, red, green and blue from the high byte down. The words
/// are taken as they stand, premultiplied or not. Resolution, colour space and texts are carried
/// on. Errors: none are reported; a null image, or a size that comes out below 1, gives a null
/// image. Arguments may be any number; ranges tell what makes sense. Thread: any; there is no
/// shared state.
class GraphX
{
public:
    /// Perceived level L = sqrt(0.299 R^2 + 0.587 G^2 + 0.114 B^2); each channel X becomes
    /// ((X - L) * saturation + L + brightness) * (contrast + 127) / 127, cut off to a whole number
    /// of 0 to 255. `brightness` in levels, `contrast` from -127 (black) over 0 (no change) up,
    /// `saturation` from 0 (no colour) over 1 (no change) up.
    static QImage brightnessContrastSaturation(const QImage& image, int brightness, int contrast,
                                               float saturation);

    /// Stretches all three channels alike so that the red histogram fills the whole range.
    /// `right` half percents of the pixels may fall off at the dark end, `left` at the bright end.
    /// Shape: opaque Format_ARGB32.
    static QImage optimizeHistogram(const QImage& image, int left, int right);

    static QImage swapRedBlue(const QImage& image);
    static QImage swapRedGreen(const QImage& image);
    static QImage swapGreenBlue(const QImage& image);

    /// Each channel by itself becomes 0 below `threshold`, else 255: up to eight colours.
    static QImage binarize(const QImage& image, int threshold);

    /// Each channel becomes the unweighted mean of the three, rounded down.
    static QImage grayscale(const QImage& image);

    /// 255 minus each of red, green and blue. A premultiplied image is inverted as the colours it
    /// stands for, and comes out premultiplied.
    static QImage invert(const QImage& image);

    /// Cuts away a share of each side, in percent, each rounded down to whole pixels. A negative
    /// share adds pixels; they get what QImage::pixel answers outside an image.
    /// Shape: what is left, in the format of the source.
    /// Errors: a null image if nothing is left.
    static QImage crop(const QImage& image, int left, int right, int top, int bottom);

    /// A quarter turn clockwise, half a turn, and a quarter turn anticlockwise, off by one pixel:
    /// the first column (90), the first row (270) or both (180) hold what QImage::pixel answers
    /// outside an image, and the source's first row, first column or both are lost.
    /// Shape: sides and their resolutions exchanged but for 180; the format of the source.
    static QImage rotate90(const QImage& image);
    static QImage rotate180(const QImage& image);
    static QImage rotate270(const QImage& image);

    /// QImage::mirrored.
    static QImage mirror(const QImage& image, bool horizontal, bool vertical);

    /// Puts a border of `color` around the image, on all four sides `widthPercent` of its width. A
    /// negative width cuts away as much. Shape: larger by twice the border, the source's format.
    static QImage frame(const QImage& image, int widthPercent, const QColor& color);

    /// Smears the part of the image inside `rect`, either way along columns and rows, the farther
    /// the greater `radius`: 1 to 18; more is as 18, less leaves the pixels as they are. The pixels
    /// at the rectangle's edge stay less blurred. `alphaOnly` leaves the colours as they are.
    /// Shape: Format_ARGB32_Premultiplied.
    static QImage blur(const QImage& image, const QRect& rect, int radius, bool alphaOnly);

    /// Scales the image smoothly to fit into `size` and centres it on `background`.
    /// Shape: `size`, the format of the source; an image with a palette comes out as Format_ARGB32.
    static QImage fitInto(const QImage& image, const QSize& size, const QColor& background);

    /// Reads a text as `imageToDataUrl` makes it. Errors: anything else gives a null image, and so
    /// does an image of more than 2^28 pixels.
    static QImage imageFromDataUrl(const QString& text);

    /// The image as "data:image/", the format in lower case, ";base64," and the file's bytes in
    /// Base64. `quality` is QImage::save's, from 0 to 100, or -1.
    /// Errors: an image that can't be saved gives a URL without a payload.
    static QString imageToDataUrl(const QImage& image, const QString& format, int quality);
};

} // namespace MGraphX
