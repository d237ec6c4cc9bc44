#include "flow/TabLabel.h"

TabLabel::TabLabel(QWidget* parent)
    : QMWidgets::Label(parent)
{
}
