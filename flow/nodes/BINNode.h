#pragma once

#include "flow/ParameterNode.h"

/// Each channel becomes 0 below the threshold (0 to 255), else 255.
class BINNode : public ParameterNode
{
    Q_OBJECT

public:
    BINNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    ComboSlider* m_threshold;
};
