#include "flow/NamedEntry.h"

#include <QAction>
#include <QMenu>

QAction* addNamedEntry(QMenu* menu, const QIcon& icon, const QString& name)
{
    QString text = name;
    text.replace(QLatin1Char('&'), QLatin1String("&&"));
    QAction* const entry = menu->addAction(icon, text);
    entry->setData(name);
    return entry;
}

QString nameOf(const QAction* entry)
{
    const QString name = entry->data().toString();
    return name.isEmpty() ? entry->text() : name;
}
