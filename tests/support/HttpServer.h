#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

/// A web server on the loopback interface, inside the test. While one lives, and from then on, the
/// process uses no proxy, so that requests reach it whatever the environment says.
class HttpServer : public QObject
{
    Q_OBJECT

public:
    /// Answers each request with these bytes as they stand and closes the connection. An empty
    /// answer never comes.
    explicit HttpServer(const QByteArray& answer);

    static QByteArray ok(const QByteArray& body);
    /// With the body's length; each of the headers ends in "\r\n". Without the length, the toolkit
    /// may ask once more, when the connection's end overtakes its reading.
    static QByteArray withStatus(const QByteArray& status, const QByteArray& headers,
                                 const QByteArray& body);
    /// Where nobody listens.
    static QString refusingHost();

    /// Goes on with letters behind each answer, up to this many bytes, as fast as they are taken.
    void setFlood(qint64 bytes) { m_flood = bytes; }
    void setAnswer(const QByteArray& answer) { m_answer = answer; }

    QString host() const;
    /// The heads of the requests so far.
    const QList<QByteArray>& requests() const { return m_requests; }
    /// Units: bytes of the last flood that have left for the client.
    qint64 flooded() const { return m_flooded; }

signals:
    void asked();

private:
    void take();
    void read(QTcpSocket* socket);
    void flood(QTcpSocket* socket);

    QTcpServer m_server;
    QByteArray m_answer;
    QList<QByteArray> m_requests;
    qint64 m_flood = 0;
    qint64 m_flooded = 0;
};
