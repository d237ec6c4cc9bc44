#pragma once

#include <QTemporaryDir>

/// A home directory of its own for one test executable: HOME and the XDG folders lie in a temporary
/// directory, which goes with the object. Build it before the application object: the toolkit keeps
/// some of these paths from its first look at them.
class TestHome
{
public:
    TestHome();

private:
    QTemporaryDir m_dir;
};
