#pragma once

#include <QFrame>

class QAbstractButton;
class QButtonGroup;
class QHBoxLayout;
class QSignalMapper;
class QTimer;

namespace QMWidgets
{

class HelpDisplay;

/// A slide show: the picture, and under it a row of numbers, one for each slide. While the show
/// runs, the next slide comes by itself; a click on a number stops it there.
class HelpViewArea : public QFrame
{
    Q_OBJECT

public:
    explicit HelpViewArea(QWidget* parent = nullptr);

    /// Adds a picture file at the end of the show, which need not exist.
    void addSlide(const QString& path);

public slots:
    /// What a click on a number does.
    void slotButtonClicked();
    void slotShowSlide(const QString& path);
    /// Goes on by one slide, from the last to the first.
    void slotShowNextSlide();
    /// Goes on from the slide that stands, or begins with the first.
    void slotStartSlideShow();
    void slotStopSlideShow();

private:
    QTimer* m_timer;
    HelpDisplay* m_display;
    QHBoxLayout* m_buttonsLayout;
    QButtonGroup* m_buttonGroup;
    QSignalMapper* m_mapper;
};

} // namespace QMWidgets
