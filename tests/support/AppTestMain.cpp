#include "support/TestHome.h"
#include "support/TestMain.h"
#include <QMWidgets/App.h>

/// The main of every test program that needs the application object.
int main(int argc, char** argv)
{
    const TestHome home;
    QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tessarin"));
    // The page of a test asks for neither, or their dialogs would hold up whatever comes next.
    app.setSettingsValue(QStringLiteral("NeverShowItAgain"), true);
    app.setSettingsValue(QStringLiteral("AutoReminder"), false);
    return runTests(argc, argv);
}
