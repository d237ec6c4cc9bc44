#pragma once

#include <QLabel>

namespace QMWidgets
{

/// The veil that dims the main window while another window is active. The style sheet paints it;
/// App keeps it and shows it. Presses on it go on to the window below.
class BlenderWidget : public QLabel
{
    Q_OBJECT

public:
    explicit BlenderWidget(QWidget* parent = nullptr);

protected:
    void mousePressEvent(QMouseEvent* event) override;
};

} // namespace QMWidgets
