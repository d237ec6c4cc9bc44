#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <memory>
#include <QMWidgets/App.h>
#include <QMWidgets/InputDialog.h>
#include <QScreen>
#include <QSpinBox>

using QMWidgets::App;
using QMWidgets::InputDialog;

namespace
{

const QString kTitle = QStringLiteral("Title");
const QString kLabel = QStringLiteral("Name:");

void press(const QDialog* dialog, const char* text)
{
    buttonOf(dialog, QLatin1String(text))->click();
}

} // namespace

class tst_InputDialog : public QObject
{
    Q_OBJECT

private slots:
    void asksForAText()
    {
        QPointer<QDialog> last;
        bool ok = false;
        const auto ask = [&ok] {
            return InputDialog::getText(nullptr, kTitle, kLabel, QLineEdit::Password,
                                        QStringLiteral("old"), &ok);
        };
        // What stood there is selected, so typing replaces it, and Enter is enough.
        QCOMPARE(withModalDialog(ask,
                                 [&last](QDialog* dialog) {
                                     last = dialog;
                                     QCOMPARE(dialog->windowTitle(), kTitle);
                                     QCOMPARE(dialog->objectName(), QStringLiteral("InputDialog"));
                                     QVERIFY(QTest::qWaitForWindowActive(dialog));
                                     auto* edit = qobject_cast<QLineEdit*>(dialog->focusWidget());
                                     QVERIFY(edit);
                                     QCOMPARE(edit->echoMode(), QLineEdit::Password);
                                     QTest::keyClicks(edit, QStringLiteral("new"));
                                     QTest::keyClick(edit, Qt::Key_Return);
                                 }),
                 QStringLiteral("new"));
        QVERIFY(ok);
        QVERIFY(!last);
    }

    void tellsTheTextOfACancelToo()
    {
        bool ok = true;
        const auto ask = [&ok] {
            return InputDialog::getText(nullptr, kTitle, kLabel, QLineEdit::Normal,
                                        QStringLiteral("old"), &ok);
        };
        const auto typeAnd = [](const auto& end) {
            return [end](QDialog* dialog) {
                QTest::keyClicks(dialog->findChild<QLineEdit*>(), QStringLiteral("new"));
                end(dialog);
            };
        };
        QCOMPARE(withModalDialog(ask, typeAnd([](QDialog* dialog) { press(dialog, "Cancel"); })),
                 QStringLiteral("new"));
        QVERIFY(!ok);
        ok = true;
        QCOMPARE(withModalDialog(ask, typeAnd([](QDialog* dialog) {
                                     QTest::keyClick(dialog, Qt::Key_Escape);
                                 })),
                 QStringLiteral("new"));
        QVERIFY(!ok);
        // Not every caller wants to know.
        QCOMPARE(withModalDialog([] { return InputDialog::getText(nullptr, kTitle, kLabel); },
                                 [](QDialog* dialog) { press(dialog, "Ok"); }),
                 QString());
    }

    void asksForANumber_data()
    {
        QTest::addColumn<int>("value");
        QTest::addColumn<int>("expected");
        QTest::newRow("below") << -7 << 5;
        QTest::newRow("inside") << 150 << 150;
        QTest::newRow("above") << 5000 << 200;
    }

    void asksForANumber()
    {
        QFETCH(int, value);
        QFETCH(int, expected);
        bool ok = false;
        const auto ask = [&] {
            return InputDialog::getInteger(nullptr, kTitle, kLabel, value, 5, 200, 10, &ok);
        };
        QCOMPARE(withModalDialog(ask, [](QDialog* dialog) { press(dialog, "Ok"); }), expected);
        QVERIFY(ok);
        QCOMPARE(withModalDialog(ask,
                                 [](QDialog* dialog) {
                                     QTest::keyClicks(dialog->focusWidget(), QStringLiteral("42"));
                                     press(dialog, "Cancel");
                                 }),
                 42);
        QVERIFY(!ok);
    }

    void aParentMayGoMeanwhile()
    {
        auto parent = std::make_unique<QWidget>();
        bool ok = true;
        const auto ask = [&] {
            return InputDialog::getText(parent.get(), kTitle, kLabel, QLineEdit::Normal,
                                        QStringLiteral("old"), &ok);
        };
        QCOMPARE(withModalDialog(ask, [&parent](QDialog*) { parent.reset(); }),
                 QStringLiteral("old"));
        QVERIFY(!ok);
    }

    void buttonsStandInAColumnOnASmallScreen()
    {
        InputDialog dialog(kLabel, nullptr, nullptr, Qt::WindowFlags(), 1);
        dialog.show();
        const QRect ok = buttonOf(&dialog, QStringLiteral("Ok"))->geometry();
        const QRect cancel = buttonOf(&dialog, QStringLiteral("Cancel"))->geometry();
        const bool small = App::isSmallDesktop(QGuiApplication::primaryScreen()->virtualSize());
        QCOMPARE(ok.bottom() < cancel.top(), small);
        QCOMPARE(ok.right() < cancel.left(), !small);
    }
};

TESSARIN_TEST(tst_InputDialog);
#include "tst_InputDialog.moc"
