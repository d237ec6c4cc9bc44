#pragma once

#include <QWidget>

namespace QMWidgets
{

/// Lays the focus ring over a widget whose children hide what it paints itself. It takes no room
/// from them and lets the mouse through.
class FocusRingOverlay : public QWidget
{
    Q_OBJECT

public:
    /// The framed widget, with all its children made, owns the ring.
    explicit FocusRingOverlay(QWidget* framed);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace QMWidgets
