#include "flow/ParameterSpinBox.h"

#include <QKeyEvent>

ParameterSpinBox::ParameterSpinBox(QWidget* parent)
    : QSpinBox(parent)
{
}

void ParameterSpinBox::keyPressEvent(QKeyEvent* event)
{
    // Without keyboard tracking Return emits a changed value only, but neither does typing emit.
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    setKeyboardTracking(!isReturn);
    QSpinBox::keyPressEvent(event);
    setKeyboardTracking(true);
}
