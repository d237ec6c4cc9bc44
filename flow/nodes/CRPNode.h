#pragma once

#include "flow/ParameterNode.h"

/// Cuts away a share of each side, in percent (0 to 100) of the width or the height.
class CRPNode : public ParameterNode
{
    Q_OBJECT

public:
    CRPNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    ComboSlider* m_left;
    ComboSlider* m_right;
    ComboSlider* m_top;
    ComboSlider* m_bottom;
};
