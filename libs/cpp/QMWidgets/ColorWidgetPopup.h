#pragma once

#include <QWidget>

namespace QMWidgets
{

/// A popup with a fixed palette of 48 colours. It hides after a choice, and when the mouse leaves
/// it.
class ColorWidgetPopup : public QWidget
{
    Q_OBJECT

public:
    /// The window is a popup, whatever `flags` say.
    explicit ColorWidgetPopup(QWidget* parent, Qt::WindowFlags flags = Qt::WindowFlags());

    /// The name by which people who don't see a colour are told it.
    static QString caption(const QColor& color);

    /// Marks the cell of a colour and puts the keyboard there; for a colour that the palette lacks
    /// no cell is marked, and the keyboard is at the first one.
    void setCurrentColor(const QColor& color);

signals:
    /// The user chose a colour; comes for the colour chosen before, too.
    void colorChanged(const QColor& color);

public slots:
    /// Takes the colour from the button that sent the signal.
    void slotColorChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    bool m_mouseInside = false;
};

} // namespace QMWidgets
