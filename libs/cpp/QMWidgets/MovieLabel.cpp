#include "MovieLabel.h"

#include "FollowLanguage.h"

#include <QTimer>

namespace QMWidgets
{

MovieLabel::MovieLabel(const QString& fileName, QWidget* parent)
    : QLabel(parent),
      m_movie(fileName, QByteArray())
{
    setObjectName(QStringLiteral("MovieLabel"));
    followLanguage(this, [this] { setAccessibleName(tr("Animation")); });
    setAlignment(Qt::AlignCenter);
    setMovie(&m_movie);
}

void MovieLabel::setFileName(const QString& fileName)
{
    const bool plays = m_movie.state() == QMovie::Running;
    m_movie.stop();
    m_movie.setFileName(fileName);
    if (plays) {
        m_movie.start();
    }
}

void MovieLabel::setSpeed(int percent)
{
    m_movie.setSpeed(percent);
}

void MovieLabel::setDuration(int milliseconds)
{
    m_duration = milliseconds;
}

void MovieLabel::showEvent(QShowEvent* event)
{
    m_movie.start();
    if (m_duration > 0) {
        QTimer::singleShot(m_duration, &m_movie, &QMovie::stop);
    }
    QLabel::showEvent(event);
}

void MovieLabel::hideEvent(QHideEvent* event)
{
    m_movie.stop();
    QLabel::hideEvent(event);
}

void MovieLabel::resizeEvent(QResizeEvent* event)
{
    constexpr float kMargin = 1.1f;
    m_movie.setScaledSize(
        QSize(qRound(float(width()) / kMargin), qRound(float(height()) / kMargin)));
    QLabel::resizeEvent(event);
}

} // namespace QMWidgets
