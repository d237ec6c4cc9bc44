#include "FuzzSupport.h"

#include "support/TestHome.h"
#include <QMWidgets/App.h>

#include <cstdio>
#include <cstdlib>

QApplication& fuzzApplication()
{
    static const TestHome home;
    // Never taken down: the fuzzer leaves the process from within a run.
    static QApplication* const application = [] {
        static char name[] = "fuzz";
        static char* arguments[] = {name, nullptr};
        static int count = 1;
        qputenv("QT_QPA_PLATFORM", "offscreen");
        return new QMWidgets::App(count, arguments, QStringLiteral("Corvane"),
                                  QStringLiteral("Tessarin"));
    }();
    return *application;
}

QString textOf(const uint8_t* data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), int(size));
}

void require(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "Not so: %s\n", what);
        std::abort();
    }
}
