#pragma once

#include "flow/ParameterNode.h"

/// Puts a border around the photo, as wide as a percentage (0 to 100) of the photo's width.
class FRMNode : public ParameterNode
{
    Q_OBJECT

public:
    FRMNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml);

private:
    QMWidgets::ColorWidget* m_color;
    ComboSlider* m_width;
};
