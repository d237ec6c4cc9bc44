#pragma once

#include <QTemporaryDir>

/// A home directory of its own for one test executable: HOME and the XDG folders lie in a temporary
/// directory, which goes with the object. Build it before the application object: the toolkit keeps
/// some of these paths from its first look at them.
class TestHome
{
public:
    TestHome();

    /// The home directory, without a slash at its end.
    QString path() const { return m_dir.path(); }

private:
    QTemporaryDir m_dir;
};
