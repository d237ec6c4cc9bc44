#pragma once

#include <QString>
#include <QStringList>

/// What went wrong on the tour: failed checks, waits in vain, and the toolkit's own warnings that
/// tell of a fault, such as a connection that failed or a style sheet that doesn't parse.
class Complaints
{
public:
    /// Prints it at once and keeps it.
    void add(const QString& text);
    /// Puts the scene's name in front of what follows.
    void setScene(const QString& name) { m_scene = name; }

    const QStringList& all() const { return m_texts; }

    /// From now on the toolkit's messages come here. The object has to outlive the application.
    void listenToToolkit();

private:
    QString m_scene;
    QStringList m_texts;
};
