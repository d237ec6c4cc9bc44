#include "flow/DirectionsWidget.h"

#include <QMWidgets/GridKeys.h>
#include <QMWidgets/TabOrder.h>

#include <QGridLayout>
#include <QGroupBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int kCells = BottomRight + 1;
constexpr int kColumns = 3;
} // namespace

DirectionsWidget::DirectionsWidget(QWidget* parent)
    : QFrame(parent),
      m_topLeft(makeButton(tr("Top left"))),
      m_topMiddle(makeButton(tr("Top middle"))),
      m_topRight(makeButton(tr("Top right"))),
      m_bottomLeft(makeButton(tr("Bottom left"))),
      m_bottomMiddle(makeButton(tr("Bottom middle"))),
      m_bottomRight(makeButton(tr("Bottom right"))),
      m_middleLeft(makeButton(tr("Middle left"))),
      m_middle(makeButton(tr("Middle"))),
      m_middleRight(makeButton(tr("Middle right"))),
      m_frame(new QGroupBox(this))
{
    // Left and right are those of the photo, whichever way the interface is read.
    setLayoutDirection(Qt::LeftToRight);
    m_bottomRight->setChecked(true);

    auto* grid = new QGridLayout(m_frame);
    grid->setContentsMargins(1, 1, 1, 1);
    grid->setSpacing(0);
    for (int cell = 0; cell < kCells; ++cell) {
        grid->addWidget(button(Direction(cell)), cell / kColumns, cell % kColumns);
    }
    QMWidgets::tabAsLaidOut(m_frame);
    new QMWidgets::GridKeys(grid); // the frame owns it
    m_frame->setFixedSize(58, 58);
    setFocusProxy(m_topLeft);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_frame);
}

QPushButton* DirectionsWidget::makeButton(const QString& name)
{
    auto* cellButton = new QPushButton(this);
    cellButton->setObjectName(QStringLiteral("DirectionButton"));
    cellButton->setAccessibleName(name);
    cellButton->setFixedSize(16, 16);
    cellButton->setFlat(true);
    cellButton->setCheckable(true);
    connect(cellButton, &QPushButton::clicked, this, &DirectionsWidget::slotClicked);
    return cellButton;
}

QPushButton* DirectionsWidget::button(Direction direction) const
{
    QPushButton* const inReadingOrder[kCells] = {m_topLeft,    m_topMiddle,    m_topRight,
                                                 m_middleLeft, m_middle,       m_middleRight,
                                                 m_bottomLeft, m_bottomMiddle, m_bottomRight};
    const int cell = int(direction);
    return cell >= 0 && cell < kCells ? inReadingOrder[cell] : nullptr;
}

void DirectionsWidget::clearButtons()
{
    for (int cell = 0; cell < kCells; ++cell) {
        button(Direction(cell))->setChecked(false);
    }
}

void DirectionsWidget::setDirection(Direction direction)
{
    m_direction = direction;
    clearButtons();
    if (QPushButton* const chosen = button(direction)) {
        chosen->setChecked(true);
    }
    emit directionChanged(direction);
}

void DirectionsWidget::slotClicked()
{
    clearButtons();
    auto* const clicked = qobject_cast<QPushButton*>(sender());
    if (!clicked) {
        return;
    }
    clicked->setChecked(true);
    for (int cell = 0; cell < kCells; ++cell) {
        if (button(Direction(cell))->isChecked()) {
            m_direction = Direction(cell);
            emit directionChanged(m_direction);
            return;
        }
    }
}
