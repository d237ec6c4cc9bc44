#pragma once

#include <QMWidgets/Label.h>

#include <QPointer>
#include <QPropertyAnimation>

class BubblePreview;
class QPushButton;

/// The thumbnail on a node's tab: the picture as it stands after that node. A small button, there
/// while the mouse is over the label, or a double click shows it larger in a bubble.
class TabLabel : public QMWidgets::Label
{
    Q_OBJECT

public:
    explicit TabLabel(QWidget* parent);
    ~TabLabel() override;

    /// Shows the bubble to the user of the keyboard, which stays where it is: the next key there
    /// closes it, and so does the keyboard's leaving.
    void showPreviewToKeys(QWidget* focused);
    bool eventFilter(QObject* watched, QEvent* event) override;

public slots:
    /// Lets the bubble fly out of the label and stand above it; with no picture nothing happens.
    void slotShowPreview();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    /// Leaves the bubble to the mouse again.
    void ignoreKeys();
    /// Makes a flight of the bubble between two places on the screen.
    QPropertyAnimation* makeFlight(const QRect& from, const QRect& to) const;

    QPushButton* m_previewButton;
    BubblePreview* m_bubble;
    QPointer<QWidget> m_focused; ///< where the keyboard was when it opened the bubble
    // The bubble's animations, kept until it is opened anew.
    QPointer<QPropertyAnimation> m_flightOut;
    QPointer<QPropertyAnimation> m_flightHome;
};
