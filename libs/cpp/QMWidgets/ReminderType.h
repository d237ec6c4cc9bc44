#pragma once

#include <QtGlobal>

namespace QMWidgets
{

/// What a reminder asks for. The values are bits, so that several can stand for a choice.
enum ReminderType : int { RateReminder = 1, TellReminder = 2, JoinReminder = 4 };

/// Picks one of the types that are set in `types` by a random number. Bits of no type are passed
/// over; without any the result is 0.
int chooseReminderType(int types, quint32 random);

} // namespace QMWidgets
