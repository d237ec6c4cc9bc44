#pragma once

#include <QStringList>

namespace QMWidgets
{

/// Who knows of new releases.
struct UpdateService {
    QStringList hosts;    ///< without a scheme; the next one is asked if one gives no answer
    int timeLimit = 7000; ///< milliseconds for each host
};

} // namespace QMWidgets
