#pragma once

#include "flow/ParameterNode.h"

class QPushButton;

/// Turns the photo by quarters, clockwise for angles above 0. No control shows the angle.
class RTTNode : public ParameterNode
{
    Q_OBJECT

public:
    RTTNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
    static QImage processFromXml(const QImage& image, const QString& xml)
    {
        return processFromXml(QImage(image), xml);
    }
    static QImage processFromXml(QImage&& image, const QString& xml);

    /// Units: degrees. Any angle but 90, 180, 270 and their negatives leaves the image as it is.
    static QImage applyAngle(const QImage& image, int angle)
    {
        return applyAngle(QImage(image), angle);
    }
    static QImage applyAngle(QImage&& image, int angle);

public slots:
    /// A quarter turn further; beyond 270 degrees it goes on at 0.
    void slotRightClicked();
    /// A quarter turn back; beyond -270 degrees it goes on at 0.
    void slotLeftClicked();

private:
    int m_angle = 90;
    QPushButton* m_rightButton;
    QPushButton* m_leftButton;
};
