#include "preview/PositionText.h"

#include "intake/CommonData.h"

QString positionText()
{
    const CommonData* const data = CommonData::instance();
    return QStringLiteral("<H1>%1 of %2</H1>").arg(data->currentIndex() + 1).arg(data->count());
}
