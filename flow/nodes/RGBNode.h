#pragma once

#include "flow/ParameterNode.h"

class QComboBox;

/// Exchanges two of the three colour channels.
class RGBNode : public ParameterNode
{
    Q_OBJECT

public:
    RGBNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

    /// Mode 0 exchanges red and blue, 1 red and green, 2 green and blue; any other leaves the image
    /// as it is.
    static QImage applyMode(QImage image, int mode);

private:
    QComboBox* m_mode;
};
