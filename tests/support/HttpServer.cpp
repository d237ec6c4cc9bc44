#include "support/HttpServer.h"

#include <QNetworkProxy>
#include <QTcpSocket>

namespace
{

QString hostOf(const QTcpServer& server)
{
    return QStringLiteral("127.0.0.1:%1").arg(server.serverPort());
}

void listen(QTcpServer& server)
{
    server.setProxy(QNetworkProxy::NoProxy);
    if (!server.listen(QHostAddress::LocalHost)) {
        qFatal("No server: %s", qPrintable(server.errorString()));
    }
}

} // namespace

HttpServer::HttpServer(const QByteArray& answer)
    : m_answer(answer)
{
    QNetworkProxy::setApplicationProxy(QNetworkProxy::NoProxy);
    connect(&m_server, &QTcpServer::newConnection, this, &HttpServer::take);
    listen(m_server);
}

QByteArray HttpServer::ok(const QByteArray& body)
{
    return withStatus("200 OK", "", body);
}

QByteArray HttpServer::withStatus(const QByteArray& status, const QByteArray& headers,
                                  const QByteArray& body)
{
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + QByteArray::number(body.size()) +
           "\r\n" + headers + "Connection: close\r\n\r\n" + body;
}

QString HttpServer::refusingHost()
{
    QTcpServer server;
    listen(server);
    return hostOf(server);
}

QString HttpServer::host() const
{
    return hostOf(m_server);
}

void HttpServer::take()
{
    QTcpSocket* const socket = m_server.nextPendingConnection();
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { read(socket); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
}

void HttpServer::read(QTcpSocket* socket)
{
    if (!socket->peek(65536).contains("\r\n\r\n")) {
        return;
    }
    QByteArray head = socket->readAll();
    head.squeeze(); // the toolkit gives it room for much more
    m_requests.append(head);
    emit asked();
    if (m_answer.isEmpty()) {
        return;
    }
    socket->write(m_answer);
    m_flooded = 0;
    if (m_flood > 0) {
        connect(socket, &QTcpSocket::bytesWritten, this, [this, socket] { flood(socket); });
    } else {
        socket->disconnectFromHost();
    }
}

void HttpServer::flood(QTcpSocket* socket)
{
    if (socket->bytesToWrite() > 0) {
        return;
    }
    if (m_flooded >= m_flood) {
        socket->disconnectFromHost();
        return;
    }
    const QByteArray letters(256 * 1024, 'x');
    m_flooded += letters.size();
    socket->write(letters);
}
