#pragma once

#include <functional>
#include <memory>
#include <QList>
#include <QObject>
#include <QTest>

/// Test objects of one executable. Each file of tests adds its class with TESSARIN_TEST, and the
/// folder's main runs them all; an executable's exit code is the number of failed functions.
inline QList<std::function<QObject*()>>& registeredTests()
{
    static QList<std::function<QObject*()>> tests;
    return tests;
}

template <class Test> struct TestRegistration {
    TestRegistration()
    {
        registeredTests().append([] { return new Test; });
    }
};

#define TESSARIN_TEST(Class) static const TestRegistration<Class> registered##Class

/// Whether an object has the test function that the command line names, as in "name" or "name:row".
/// Without a name, each object has it.
inline bool isAskedFor(const QObject& test, int argc, char** argv)
{
    if (argc < 2 || argv[1][0] == '-') {
        return true;
    }
    const QByteArray function = QByteArray(argv[1]).split(':').first() + "()";
    return test.metaObject()->indexOfSlot(function.constData()) >= 0;
}

/// Runs every registered object, or the one with the function asked for. Needs an application
/// object.
inline int runTests(int argc, char** argv)
{
    int failures = 0;
    for (const auto& make : qAsConst(registeredTests())) {
        const std::unique_ptr<QObject> test(make());
        if (isAskedFor(*test, argc, argv)) {
            failures += QTest::qExec(test.get(), argc, argv);
        }
    }
    return failures;
}
