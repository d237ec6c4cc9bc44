#pragma once

#include "ReminderDialog.h"

namespace QMWidgets
{

/// Asks the user to rate the program.
class RateReminderDialog : public ReminderDialog
{
    Q_OBJECT

public:
    explicit RateReminderDialog(QWidget* parent);
};

} // namespace QMWidgets
