#include "ButtonRow.h"

#include "App.h"

#include <QBoxLayout>

namespace QMWidgets
{

QBoxLayout* makeButtonRow()
{
    return new QBoxLayout(App::isSmallScreen() ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
}

} // namespace QMWidgets
