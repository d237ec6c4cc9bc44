#include "ReminderType.h"

namespace QMWidgets
{

int chooseReminderType(int types, quint32 random)
{
    const bool odd = random % 2 == 1;
    const int known = types & (RateReminder | TellReminder | JoinReminder);
    switch (known) {
    case RateReminder | TellReminder | JoinReminder:
        return random % 3 == 0 ? RateReminder : random % 3 == 1 ? TellReminder : JoinReminder;
    case RateReminder | TellReminder:
        return odd ? TellReminder : RateReminder;
    case RateReminder | JoinReminder:
        return odd ? JoinReminder : RateReminder;
    case TellReminder | JoinReminder:
        return odd ? TellReminder : JoinReminder;
    default:
        return known;
    }
}

} // namespace QMWidgets
