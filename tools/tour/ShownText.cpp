#include "ShownText.h"

#include <QCoreApplication>
#include <QVector>

namespace
{

/// The contexts in which what the speaker shows may be translated, the nearest first.
QVector<const char*> contextsOf(const QObject* speaker)
{
    QVector<const char*> contexts;
    for (; speaker; speaker = speaker->parent()) {
        for (auto* type = speaker->metaObject(); type; type = type->superClass()) {
            contexts.append(type->className());
        }
    }
    // A free function that fills a window has a context of its own.
    contexts.append("QMWidgets::SocialRows");
    return contexts;
}

} // namespace

QString shownText(const QObject* speaker, const QString& english)
{
    const QByteArray source = english.toUtf8();
    for (const char* const context : contextsOf(speaker)) {
        const QString shown = QCoreApplication::translate(context, source.constData());
        if (shown != english) {
            return shown;
        }
    }
    return english;
}
