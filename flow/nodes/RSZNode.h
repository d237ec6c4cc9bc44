#pragma once

#include "flow/ParameterNode.h"

class QComboBox;

/// Scales the photo to a percentage of each side, into a box of pixels with its proportions kept,
/// or to a size in pixels.
///
/// Changing the mode sets both sliders anew, so when parameters are read the mode has to come
/// before the sizes.
class RSZNode : public ParameterNode
{
    Q_OBJECT

public:
    RSZNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

    /// Mode 0 takes `width` and `height` as percentages of the sides, 1 as the box to fit into, 2
    /// as the size itself; any other leaves the image as it is. With `preview` the image is a
    /// reduced stand-in for the photo: mode 1 leaves it as it is, and mode 2 makes the width 700 if
    /// it is more, else the height, and the other side in proportion.
    /// Shape: the format of QImage::scaled; resolution, colour space and texts are carried on.
    /// Errors: a null image for a side below 1 and for a growth beyond about 2 GiB, where a
    /// side that shrinks counts as it was.
    static QImage scaleImage(const QImage& image, int width, int height, int mode, bool preview)
    {
        return scaleImage(QImage(image), width, height, mode, preview);
    }
    static QImage scaleImage(QImage&& image, int width, int height, int mode, bool preview);

public slots:
    /// Sets range, unit and value of both sliders for the mode.
    void slotComboItemChanged(int index);

private:
    QComboBox* m_mode;
    ComboSlider* m_width;
    ComboSlider* m_height;
};
