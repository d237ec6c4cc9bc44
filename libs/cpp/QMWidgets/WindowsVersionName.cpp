#include "WindowsVersionName.h"

namespace QMWidgets
{

QString windowsVersionName(int version)
{
    static const struct {
        int version;
        const char* name;
    } kNames[] = {{32, "2000"}, {48, "XP"}, {64, "2003"}, {128, "Vista"},
                  {144, "7"},   {160, "8"}, {176, "8.1"}};
    for (const auto& entry : kNames) {
        if (entry.version == version) {
            return QLatin1String("Win ") + QLatin1String(entry.name);
        }
    }
    return QStringLiteral("Win (%1)").arg(version);
}

} // namespace QMWidgets
