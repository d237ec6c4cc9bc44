#include "FuzzSupport.h"

#include "support/HttpServer.h"
#include <QMWidgets/UpdateAnswer.h>
#include <QMWidgets/UpdateRequest.h>

#include <algorithm>
#include <QCoreApplication>
#include <QEventLoop>

using namespace QMWidgets;

namespace
{

const QDate kBuildDate(2024, 5, 30);

/// Whether something like a date stands at the end, and not of a year before the build. The toolkit
/// takes signs within a date, as in "2024-+5-31".
bool endsInLaterDate(const QString& answer)
{
    const QString end = answer.trimmed().right(10);
    const bool isDigitsAndSigns = std::all_of(end.cbegin(), end.cend(), [](QChar letter) {
        return QStringLiteral("0123456789+-").contains(letter);
    });
    return end.size() == 10 && isDigitsAndSigns && end.at(4) == QLatin1Char('-') &&
           end.at(7) == QLatin1Char('-') && end >= QLatin1String("2024");
}

void read(const QByteArray& body)
{
    const QString answer = updateAnswerText(body);
    require(answer.size() <= body.size() && !answer.contains(QChar::Null),
            "an answer ends at the first zero byte");
    const UpdateState state = readUpdateAnswer(answer, kBuildDate);
    const bool hasMarker = QByteArray(body.constData()).contains("!date!");
    require((state == UpdateState::Unknown) == !hasMarker, "an answer with the marker is useful");
    require(state != UpdateState::Newer || endsInLaterDate(answer),
            "only a later date at the end tells of a newer release");
    // A semicolon would take part in the separator.
    if (!answer.endsWith(QLatin1Char(';'))) {
        const QString later = answer + QLatin1String(";;;9999-12-31");
        require(readUpdateAnswer(later, kBuildDate) ==
                    (hasMarker ? UpdateState::Newer : UpdateState::Unknown),
                "the last part is what counts");
    }
}

/// The body in pieces that grow, as a server sends one whose length it doesn't know.
QByteArray inChunks(const QByteArray& body)
{
    QByteArray answer =
        "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\nConnection: close\r\n\r\n";
    for (int at = 0, size = 1; at < body.size(); at += size, size *= 2) {
        const QByteArray chunk = body.mid(at, size);
        answer += QByteArray::number(chunk.size(), 16) + "\r\n" + chunk + "\r\n";
    }
    return answer + "0\r\n\r\n";
}

void fetch(const QByteArray& answer, const QByteArray& body)
{
    // For the life of the process, since only its making takes a port.
    static HttpServer* const server = new HttpServer(answer);
    server->setAnswer(answer);
    constexpr int kTimeLimit = 60000;
    QString fetched;
    QEventLoop loop;
    UpdateRequest request({{server->host()}, kTimeLimit});
    QObject::connect(&request, &UpdateRequest::answered, &loop, [&](const QString& text) {
        fetched = text;
        loop.quit();
    });
    request.start();
    loop.exec();
    require(fetched == updateAnswerText(body), "what a host has sent comes in");
    // The server's sockets leave by the event loop.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

/// A letter and the body of an answer. That body is read, and by the letter also comes from a host:
/// with its length, in chunks, falsely called packed, or cut off.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzApplication();
    if (size == 0) {
        return 0;
    }
    const QByteArray body(reinterpret_cast<const char*>(data + 1), int(size - 1));
    read(body);
    switch (data[0]) {
    case 'L':
        fetch(HttpServer::ok(body), body);
        break;
    case 'C':
        fetch(inChunks(body), body);
        break;
    case 'P':
        fetch(HttpServer::withStatus("200 OK", "Content-Encoding: gzip\r\n", body), body);
        break;
    case 'S':
        fetch("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size() + 1) +
                  "\r\n\r\n" + body,
              QByteArray());
        break;
    default:
        break;
    }
    return 0;
}
