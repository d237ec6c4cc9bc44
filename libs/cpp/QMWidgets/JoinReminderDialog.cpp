#include "JoinReminderDialog.h"

#include "JoinWidget.h"

#include <QLabel>

namespace QMWidgets
{

JoinReminderDialog::JoinReminderDialog(QWidget* parent)
    : ReminderDialog(parent)
{
    setWindowTitle(tr("Join Us"));
    finishText(QString());
    textLabel()->hide();
    showInstead(new JoinWidget(this));
}

} // namespace QMWidgets
