#pragma once

#include "ReminderDialog.h"

namespace QMWidgets
{

/// Asks the user to tell others of the program. It can't be answered with "now". Needs an App.
class TellReminderDialog : public ReminderDialog
{
    Q_OBJECT

public:
    explicit TellReminderDialog(QWidget* parent);
};

} // namespace QMWidgets
