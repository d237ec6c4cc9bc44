#pragma once

#include <QPixmap>
#include <QRect>
#include <QVector>
#include <QWidgetList>

/// A picture of windows as they lie upon each other, with the places that a slide points at. All
/// places are logical pixels of the picture, and are asked of the widgets themselves.
class Shot
{
public:
    /// The first window lies at the bottom. The picture shows the ground of all of them.
    explicit Shot(const QWidgetList& windows);
    /// A picture from elsewhere; it has its pixel ratio.
    explicit Shot(const QPixmap& picture);

    Shot& mark(const QWidget* widget);
    Shot& mark(const QWidget* widget, const QRect& place);
    /// Leaves a place bright, without a frame.
    Shot& light(const QWidget* widget);
    /// Where the mouse points.
    Shot& point(const QWidget* widget, const QPoint& place);
    Shot& point(const QPoint& place);
    Shot& pointAtMiddle(const QWidget* widget);
    /// The picture has no edge of its own that would throw a shadow.
    Shot& standFree();

    const QPixmap& picture() const { return m_picture; }
    QSizeF size() const;
    const QVector<QRect>& marks() const { return m_marks; }
    const QVector<QRect>& lights() const { return m_lights; }
    bool hasPointer() const { return m_hasPointer; }
    QPoint pointer() const { return m_pointer; }
    bool isFree() const { return m_free; }

private:
    QPoint toPicture(const QWidget* widget, const QPoint& place) const;

    QPixmap m_picture;
    QPoint m_corner; ///< of the picture, in global places
    QVector<QRect> m_marks;
    QVector<QRect> m_lights;
    QPoint m_pointer;
    bool m_hasPointer = false;
    bool m_free = false;
};
