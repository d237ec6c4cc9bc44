#pragma once

#include <QFrame>

namespace QMWidgets
{

/// Shows one picture file on black, as large as it fits. A file that can't be read leaves the black
/// ground, an empty path nothing at all.
class HelpDisplay : public QFrame
{
    Q_OBJECT

public:
    explicit HelpDisplay(QWidget* parent = nullptr);

    /// Takes another picture; it is seen at the next paint.
    void setSlide(const QString& path) { m_slide = path; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_slide;
};

} // namespace QMWidgets
