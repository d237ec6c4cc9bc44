#include "preview/BubblePreview.h"

#include <QMWidgets/Label.h>

#include <QVBoxLayout>

BubblePreview::BubblePreview(QWidget* parent)
    : BubbleWindow(parent),
      m_label(new QMWidgets::Label(this))
{
    m_label->setObjectName(QStringLiteral("BubbleLabel"));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(15, 15, 15, 15);
    // Whoever shows the bubble sets its size. A layout that held a small one up to its margins
    // would push the pointer's tip away from what it points at.
    layout->setSizeConstraint(QLayout::SetNoConstraint);
    layout->addWidget(m_label);
    layout->addSpacing(kPointerHeight);
}

void BubblePreview::setPixmap(const QPixmap& pixmap)
{
    m_label->setPixmap(pixmap);
}
