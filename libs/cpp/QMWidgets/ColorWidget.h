#pragma once

#include <QColor>
#include <QWidget>

namespace QMWidgets
{

class ColorWidgetPopup;

/// A swatch that shows a colour and lets the user choose another from a popup, which opens and
/// closes with a mouse press, the space bar or Enter. Its size is the caller's matter.
class ColorWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ColorWidget(QWidget* parent = nullptr);

    /// Green at first.
    QColor color() const { return m_color; }
    /// Shows a colour without telling of it.
    void setColor(const QColor& color);
    /// Range: 0, not to be seen, to 1, opaque.
    void setPopupOpacity(float opacity);

signals:
    /// The user chose a colour, maybe the one that was shown already.
    void colorChanged(const QColor& color);

public slots:
    /// Shows a colour and tells of it.
    void slotColorChanged(const QColor& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void storeColor(const QColor& color);
    void togglePopup();

    ColorWidgetPopup* m_popup = nullptr;
    QColor m_color = Qt::green;
};

} // namespace QMWidgets
