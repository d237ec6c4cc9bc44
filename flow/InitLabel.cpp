#include "flow/InitLabel.h"

#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/MovieLabel.h>

#include <QEvent>
#include <QPixmap>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace
{

// The size at which the picture is drawn, and the room in it for words.
constexpr QSize kPicture(735, 175);
constexpr QRect kTitle(136, 38, 308, 48);
constexpr QRect kHint(136, 88, 308, 72);

// Sizes of letters.
constexpr int kTitlePixels = 28;
constexpr int kHintPixels = 15;
constexpr int kLeastPixels = 10;

/// As large as the words fit into the label, up to `pixels`. The size stands in the text, since the
/// style sheet's would go before the font's.
void showFitting(QLabel* label, const QString& words, int pixels)
{
    for (int size = pixels; size >= kLeastPixels; --size) {
        label->setText(QStringLiteral("<div style=\"font-size:%1px; line-height:120%\">%2</div>")
                           .arg(size)
                           .arg(words));
        if (label->minimumSizeHint().width() <= label->width() &&
            label->heightForWidth(label->width()) <= label->height()) {
            return;
        }
    }
}

} // namespace

InitLabel::InitLabel(QWidget* parent)
    : QMWidgets::Label(parent),
      m_title(new QLabel(this)),
      m_hint(new QLabel(this)),
      m_arrow(new QMWidgets::MovieLabel(QString(), this))
{
    m_title->setObjectName(QStringLiteral("InitTitle"));
    m_hint->setObjectName(QStringLiteral("InitHint"));
    m_hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_hint->setWordWrap(true);
    m_arrow->setDuration(10000);
    m_arrow->setFixedSize(100, 100);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_arrow, 0, Qt::AlignLeft | Qt::AlignBottom);
    showPictures();
    QMWidgets::followLanguage(this, [this] { showWords(); });
}

void InitLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        showPictures();
        showWords();
    }
    Label::changeEvent(event);
}

void InitLabel::resizeEvent(QResizeEvent* event)
{
    Label::resizeEvent(event);
    showWords();
}

void InitLabel::showPictures()
{
    const bool fromRight = isRightToLeft();
    setPixmap(QPixmap(fromRight ? QStringLiteral(":/initlabel_ar.png")
                                : QStringLiteral(":/initlabel_en.png")));
    m_arrow->setFileName(fromRight ? QStringLiteral(":/arrow_rtl.gif")
                                   : QStringLiteral(":/arrow.gif"));
}

QRect InitLabel::onLabel(const QRect& place) const
{
    // The picture is scaled to fit, and centred.
    const double scale =
        std::min(double(width()) / kPicture.width(), double(height()) / kPicture.height());
    const QSizeF shown = QSizeF(kPicture) * scale;
    const QPointF corner((width() - shown.width()) / 2, (height() - shown.height()) / 2);
    const QRectF placed(corner + QPointF(place.topLeft()) * scale, QSizeF(place.size()) * scale);
    return QStyle::visualRect(layoutDirection(), rect(), placed.toRect());
}

void InitLabel::showWords()
{
    m_title->setGeometry(onLabel(kTitle));
    m_hint->setGeometry(onLabel(kHint));
    showFitting(m_title, tr("Add an operation"), kTitlePixels);
    showFitting(m_hint,
                tr("Press the round + and pick a step.") + QLatin1String("<br>") +
                    tr("Steps run from left to right."),
                kHintPixels);
}
