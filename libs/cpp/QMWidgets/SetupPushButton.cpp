#include "SetupPushButton.h"

#include <QPushButton>

namespace QMWidgets
{

void setupPushButton(QPushButton* button)
{
    button->setObjectName(QStringLiteral("PushButton"));
    button->setFlat(true);
    button->setMinimumHeight(32);
}

} // namespace QMWidgets
