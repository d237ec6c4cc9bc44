#pragma once

#include <QLabel>
#include <QPixmap>

namespace QMWidgets
{

/// A label that paints its own picture over what QLabel paints, so a text, the style sheet's
/// background and a picture may stand on it together. The picture keeps its proportions, is centred
/// and is scaled to device pixels at each paint, so it is sharp on every screen. Needs no App.
class Label : public QLabel
{
    Q_OBJECT

public:
    explicit Label(QWidget* parent = nullptr);

    /// The picture; a null one shows nothing. These hide QLabel's own pixmap, which stays unset.
    void setPixmap(const QPixmap& pixmap);
    const QPixmap& pixmap() const { return m_pixmap; }
    /// False at first: the whole picture is seen. True: the picture covers the label from its
    /// top-left corner on, and what lies beyond is cut off.
    void setExpanding(bool expanding) { m_expanding = expanding; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_pixmap;
    bool m_expanding = false;
};

} // namespace QMWidgets
