#pragma once

#include <QMutex>
#include <QString>
#include <QStringList>

/// What went wrong on the tour: failed checks, waits in vain, and the toolkit's own warnings that
/// tell of a fault, such as a connection that failed or a style sheet that doesn't parse.
///
/// Thread: complaints come from any; the rest belongs to the interface thread.
class Complaints
{
public:
    Complaints() = default;
    ~Complaints();

    /// Prints it at once and keeps it.
    void add(const QString& text);
    /// Puts the scene's name in front of what follows.
    void setScene(const QString& name);

    int count() const;

    /// From now on and as long as the object lives, the toolkit's messages come here. There is one
    /// listener at a time.
    void listenToToolkit();

private:
    Q_DISABLE_COPY(Complaints)

    mutable QMutex m_mutex;
    QString m_scene;
    QStringList m_texts;
};
