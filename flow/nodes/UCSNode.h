#pragma once

#include "flow/ParameterNode.h"

/// Tints the photo from the centre to the edge. The radius (0 to 100, in percent of the longer
/// side) tells where the full colour is reached, the opacity (0 to 100, in percent) how much of it
/// covers the photo.
class UCSNode : public ParameterNode
{
    Q_OBJECT

public:
    UCSNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

    /// MGraphX::vignetteImage: radius in percent of the longer side, opacity in percent. The
    /// colour's alpha doesn't count, and an invalid colour is black.
    static QImage vignette(const QImage& image, int radius, int opacity, const QColor& color);

private:
    ComboSlider* m_radius;
    ComboSlider* m_opacity;
    QMWidgets::ColorWidget* m_color;
};
