#include "flow/FlowFile.h"

#include "flow/FlowsFolder.h"
#include <QMWidgets/WholeFile.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextCodec>

namespace
{

/// Room for a few logos as large as photos. Reading takes several times as much memory.
constexpr int kMaxBytes = 256 << 20;

QString decoded(const QByteArray& bytes)
{
    const QTextCodec* const unicode =
        QTextCodec::codecForUtfText(bytes, QTextCodec::codecForName("UTF-8"));
    QTextCodec::ConverterState state;
    const QString text = unicode->toUnicode(bytes.constData(), bytes.size(), &state);
    const bool isUnicode = state.invalidChars == 0 && state.remainingChars == 0;
    return isUnicode ? text : QTextCodec::codecForLocale()->toUnicode(bytes);
}

} // namespace

namespace FlowFile
{

QString path(const QString& fileName)
{
    const QString folder = QDir::cleanPath(flowsFolder()) + QLatin1Char('/');
    const QString path = QDir::cleanPath(folder + fileName);
    return path.startsWith(folder) && !path.contains(QChar::Null) ? path : QString();
}

bool read(const QString& path, QString& text)
{
    const QFileInfo info(path);
    QFile file(path);
    // A pipe or a device would never end.
    if (!info.isFile() || info.size() > kMaxBytes || !file.open(QIODevice::ReadOnly)) {
        return false;
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return false;
    }
    text = decoded(bytes);
    return true;
}

bool write(const QString& path, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    return !path.isEmpty() && bytes.size() <= kMaxBytes && QMWidgets::writeWholeFile(path, bytes);
}

} // namespace FlowFile
