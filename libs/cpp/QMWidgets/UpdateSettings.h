#pragma once

#include <QDate>

/// What the settings keep about the check for updates. Needs an App.
namespace QMWidgets::UpdateSettings
{

/// Whether the program looks for updates when it starts.
bool isCheckedAtStart();
void setCheckedAtStart(bool on);

/// Day of the last check at a start that got an answer; invalid if there was none.
QDate lastCheck();
void setLastCheck(const QDate& day);

} // namespace QMWidgets::UpdateSettings
