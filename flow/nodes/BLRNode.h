#pragma once

#include "flow/ParameterNode.h"

/// Blurs the photo; the radius (0 to 20) picks one of the filter's strengths. Even a radius of 0
/// leaves the photo premultiplied.
class BLRNode : public ParameterNode
{
    Q_OBJECT

public:
    BLRNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    ComboSlider* m_radius;
};
