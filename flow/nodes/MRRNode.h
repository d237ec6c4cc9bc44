#pragma once

#include "flow/ParameterNode.h"

class QPushButton;

/// Mirrors the photo, left to right, top to bottom, both or neither.
class MRRNode : public ParameterNode
{
    Q_OBJECT

public:
    MRRNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

private:
    QPushButton* m_horizontalButton;
    QPushButton* m_verticalButton;
};
