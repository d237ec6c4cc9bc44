#include "UpdateSettings.h"

#include "App.h"

namespace QMWidgets
{

namespace
{
const QString kCheckedAtStart = QStringLiteral("checkupdates");
const QString kLastCheck = QStringLiteral("LastUpdateCheck");
const QString kDayFormat = QStringLiteral("yyyy-MM-dd");
} // namespace

bool UpdateSettings::isCheckedAtStart()
{
    return App::app()->settingsValue(kCheckedAtStart, true).toBool();
}

void UpdateSettings::setCheckedAtStart(bool on)
{
    App::app()->setSettingsValue(kCheckedAtStart, on);
}

QDate UpdateSettings::lastCheck()
{
    return QDate::fromString(App::app()->settingsValue(kLastCheck, QString()).toString(),
                             kDayFormat);
}

void UpdateSettings::setLastCheck(const QDate& day)
{
    App::app()->setSettingsValue(kLastCheck, day.toString(kDayFormat));
}

} // namespace QMWidgets
