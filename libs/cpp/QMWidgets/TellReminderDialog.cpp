#include "TellReminderDialog.h"

#include "TellWidget.h"

namespace QMWidgets
{

TellReminderDialog::TellReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    setWindowTitle(tr("Share"));
    finishText(tr("<br>Share it with Your Friends.<br>Thanks!"));
    showInstead(new TellWidget(this));
}

} // namespace QMWidgets
