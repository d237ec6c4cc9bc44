#pragma once

#include <QList>
#include <QObject>
#include <QUrl>

/// Takes the addresses that the program hands to the desktop, so that no browser, mail program or
/// file manager opens.
class UrlTrap : public QObject
{
    Q_OBJECT

public:
    explicit UrlTrap(QObject* parent = nullptr);
    ~UrlTrap() override;

    const QList<QUrl>& urls() const { return m_urls; }

public slots:
    void slotTake(const QUrl& url);

private:
    QList<QUrl> m_urls;
};
