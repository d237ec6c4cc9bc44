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

/// Runs every registered object. Needs an application object.
inline int runTests(int argc, char** argv)
{
    int failures = 0;
    for (const auto& make : qAsConst(registeredTests())) {
        const std::unique_ptr<QObject> test(make());
        failures += QTest::qExec(test.get(), argc, argv);
    }
    return failures;
}
