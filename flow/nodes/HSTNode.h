#pragma once

#include "flow/ParameterNode.h"

/// Stretches the levels: half the percentage Right of the pixels may drown in black, half the
/// percentage Left in white (both 0 to 100).
class HSTNode : public ParameterNode
{
    Q_OBJECT

public:
    HSTNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    ComboSlider* m_left;
    ComboSlider* m_right;
};
