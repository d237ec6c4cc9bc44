#include "UrlTrap.h"

#include <QDesktopServices>

namespace
{
const char* const kSchemes[] = {"file", "http", "https", "mailto"};
} // namespace

UrlTrap::UrlTrap(QObject* parent)
    : QObject(parent)
{
    for (const char* const scheme : kSchemes) {
        QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "slotTake");
    }
}

UrlTrap::~UrlTrap()
{
    for (const char* const scheme : kSchemes) {
        QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
}

void UrlTrap::slotTake(const QUrl& url)
{
    m_urls.append(url);
}
