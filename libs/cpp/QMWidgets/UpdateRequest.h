#pragma once

#include "UpdateService.h"

#include <QObject>

class QTimer;

namespace QMRequest
{
class Downloader;
} // namespace QMRequest

namespace QMWidgets
{

/// Asks the hosts of an update service in their order until one gives an answer. Nothing waits
/// inside it, so it holds nothing up, whatever event loops are at work. Deleting it breaks the
/// request off.
///
/// Thread: the one that made it, which needs an event loop.
class UpdateRequest : public QObject
{
    Q_OBJECT

public:
    explicit UpdateRequest(const UpdateService& service, QObject* parent = nullptr);

    /// Called once.
    void start();

signals:
    /// The answer's text; empty if no host has given one in its time. Comes once: from the event
    /// loop, or out of start() if there are no hosts.
    void answered(const QString& answer);

private:
    void askNextHost();
    void takeBody(const QByteArray& body);

    UpdateService m_service; // with the hosts that have not been asked yet
    QTimer* m_limit;
    QMRequest::Downloader* m_downloader = nullptr;
};

} // namespace QMWidgets
