#include "flow/InitLabel.h"

#include <QMWidgets/MovieLabel.h>

#include <QEvent>
#include <QPixmap>
#include <QVBoxLayout>

InitLabel::InitLabel(QWidget* parent)
    : QMWidgets::Label(parent),
      m_arrow(new QMWidgets::MovieLabel(QString(), this))
{
    m_arrow->setDuration(10000);
    m_arrow->setFixedSize(100, 100);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_arrow, 0, Qt::AlignLeft | Qt::AlignBottom);
    showPictures();
}

void InitLabel::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        showPictures();
    }
    Label::changeEvent(event);
}

void InitLabel::showPictures()
{
    const bool fromRight = isRightToLeft();
    setPixmap(QPixmap(fromRight ? QStringLiteral(":/initlabel_ar.png")
                                : QStringLiteral(":/initlabel_en.png")));
    m_arrow->setFileName(fromRight ? QStringLiteral(":/arrow_rtl.gif")
                                   : QStringLiteral(":/arrow.gif"));
}
