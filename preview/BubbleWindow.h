#pragma once

#include <QAbstractAnimation>
#include <QFrame>
#include <QPointer>

/// A small translucent window with the outline of a speech bubble, whose pointer stands in the
/// middle of its lower edge. It goes at the next press of a mouse button anywhere in the
/// application, and not by a change of the focus.
class BubbleWindow : public QFrame
{
    Q_OBJECT

public:
    /// The pointer's height, which is part of the window's.
    static constexpr int kPointerHeight = 20;

    explicit BubbleWindow(QWidget* parent);

    /// Animations that start whenever the window shows and whenever it hides. They stay the
    /// caller's, may be null, and are forgotten when they are deleted.
    void setShowAnimation(QAbstractAnimation* animation) { m_showAnimation = animation; }
    void setHideAnimation(QAbstractAnimation* animation) { m_hideAnimation = animation; }
    QAbstractAnimation* showAnimation() const { return m_showAnimation; }
    QAbstractAnimation* hideAnimation() const { return m_hideAnimation; }

public slots:
    /// Hides the window unless it is the active one.
    void slotFocusChanged(QWidget* old, QWidget* now);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QPointer<QAbstractAnimation> m_showAnimation;
    QPointer<QAbstractAnimation> m_hideAnimation;
};
