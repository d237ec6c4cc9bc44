#include "RateReminderDialog.h"

#include <QPushButton>

namespace QMWidgets
{

RateReminderDialog::RateReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    finishText(tr("<br>please rate it in the App Store.<br>Thanks!"));
    laterButton2()->hide();
    nowButton()->setText(tr("&Rate It Now"));
    nowButton()->setFocus();
}

} // namespace QMWidgets
