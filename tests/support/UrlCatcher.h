#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>
#include <utility>

/// Catches the addresses that would be opened by the desktop while it lives.
class UrlCatcher : public QObject
{
    Q_OBJECT

public:
    UrlCatcher()
    {
        for (const char* scheme : kSchemes) {
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "slotOpen");
        }
    }
    ~UrlCatcher() override
    {
        for (const char* scheme : kSchemes) {
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
        }
    }

    /// The addresses caught since the last call.
    QList<QUrl> take() { return std::exchange(m_urls, {}); }

public slots:
    void slotOpen(const QUrl& url) { m_urls.append(url); }

private:
    static constexpr const char* kSchemes[] = {"https", "mailto", "file"};
    QList<QUrl> m_urls;
};
