#pragma once

#include "flow/Direction.h"

#include <QFrame>

class QGroupBox;
class QPushButton;

/// Nine cells of which one is chosen: a position in a grid of three by three.
class DirectionsWidget : public QFrame
{
    Q_OBJECT

public:
    explicit DirectionsWidget(QWidget* parent);

    Direction direction() const { return m_direction; }
    /// Emits directionChanged in any case; a value outside the nine leaves no cell chosen.
    void setDirection(Direction direction);

signals:
    void directionChanged(Direction direction);

public slots:
    void slotClicked();

private:
    QPushButton* makeButton(const QString& name);
    QPushButton* button(Direction direction) const;
    void clearButtons();

    QPushButton* m_topLeft;
    QPushButton* m_topMiddle;
    QPushButton* m_topRight;
    QPushButton* m_bottomLeft;
    QPushButton* m_bottomMiddle;
    QPushButton* m_bottomRight;
    QPushButton* m_middleLeft;
    QPushButton* m_middle;
    QPushButton* m_middleRight;
    QGroupBox* m_frame;
    Direction m_direction = BottomRight;
};
