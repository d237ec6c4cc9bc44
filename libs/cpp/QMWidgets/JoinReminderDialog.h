#pragma once

#include "ReminderDialog.h"

namespace QMWidgets
{

/// Leads the user to the maker's social pages. It can't be answered with "now". Needs an App.
class JoinReminderDialog : public ReminderDialog
{
    Q_OBJECT

public:
    explicit JoinReminderDialog(QWidget* parent);
};

} // namespace QMWidgets
