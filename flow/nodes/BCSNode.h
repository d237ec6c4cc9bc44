#pragma once

#include "flow/ParameterNode.h"

/// Brightness (-127 to 128, in levels), contrast (-127 to 128) and saturation (0 to 100, where 50
/// stands for no change).
class BCSNode : public ParameterNode
{
    Q_OBJECT

public:
    BCSNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    ComboSlider* m_brightness;
    ComboSlider* m_contrast;
    ComboSlider* m_saturation;
};
