#include "OpenAddress.h"

#include <QDesktopServices>
#include <QUrl>

namespace QMWidgets
{

void openAddress(const QUrl& url)
{
    static_cast<void>(QDesktopServices::openUrl(url));
}

} // namespace QMWidgets
