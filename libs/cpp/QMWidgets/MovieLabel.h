#pragma once

#include <QLabel>
#include <QMovie>

namespace QMWidgets
{

/// Plays an animated picture while it is shown, a little smaller than the label so that a margin
/// stays. A file that can't be read shows nothing.
class MovieLabel : public QLabel
{
    Q_OBJECT

public:
    explicit MovieLabel(const QString& fileName, QWidget* parent = nullptr);

    /// Goes on with another picture, from its start if the label plays.
    void setFileName(const QString& fileName);
    /// Units: percent of the picture's own speed.
    void setSpeed(int percent);
    /// How long to play, in milliseconds; the last frame then stays. Counted from each show, and an
    /// earlier show's count goes on when the label is hidden and shown again. Zero or less
    /// plays for as long as the label is shown.
    void setDuration(int milliseconds);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QMovie m_movie;
    int m_duration = -1;
};

} // namespace QMWidgets
