#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <memory>
#include <QMWidgets/FileDialog.h>
#include <QMWidgets/InputDialog.h>
#include <QMWidgets/MMessageBox.h>

#include <QScreen>
#include <QStandardPaths>
#include <QTemporaryDir>

using namespace QMWidgets;

namespace
{

const QString kTitle = QStringLiteral("Title");
const QString kText = QStringLiteral("Something that the user should know");

std::function<void(QDialog*)> pressing(const char* button)
{
    return [=](QDialog* dialog) {
        buttonOf(dialog, QLatin1String(button))->click();
    };
}

std::function<void(QDialog*)> striking(Qt::Key key)
{
    return [=](QDialog* dialog) {
        QVERIFY(QTest::qWaitForWindowActive(dialog));
        QTest::keyClick(dialog->focusWidget() ? dialog->focusWidget() : dialog, key);
    };
}

/// The folder in which a dialog for files begins; it ends with that file, or with a cancel.
QString folderOfferedBy(const std::function<void()>& ask, const QString& file = QString())
{
    QString folder;
    withModalDialog(ask, [&](QDialog* dialog) {
        auto* const files = qobject_cast<QFileDialog*>(dialog);
        folder = files->directory().path();
        if (!file.isEmpty()) {
            files->selectFile(file);
            files->QDialog::accept();
        }
    });
    return folder;
}

QString askForText(QWidget* parent, bool* ok)
{
    return InputDialog::getText(parent, kTitle, kText, QLineEdit::Password, QStringLiteral("old"),
                                ok);
}

} // namespace

class tst_Dialogs : public QObject
{
    Q_OBJECT

private slots:
    void asksForAText()
    {
        const struct {
            const char* name;
            std::function<void(QDialog*)> end;
            bool isOk;
        } rows[] = {{"Ok", pressing("Ok"), true},
                    {"Return", striking(Qt::Key_Return), true},
                    {"Cancel", pressing("Cancel"), false},
                    {"Escape", striking(Qt::Key_Escape), false}};
        for (const auto& row : rows) {
            QPointer<QDialog> last;
            bool isOk = !row.isOk;
            const auto act = [&](QDialog* dialog) {
                last = dialog;
                QCOMPARE(dialog->windowTitle(), kTitle);
                QVERIFY(QTest::qWaitForWindowActive(dialog));
                auto* const edit = qobject_cast<QLineEdit*>(dialog->focusWidget());
                QVERIFY(edit && edit->echoMode() == QLineEdit::Password);
                // What stood there is selected, so typing replaces it.
                QTest::keyClicks(edit, QStringLiteral("new"));
                row.end(dialog);
            };
            const auto text = withModalDialog([&] { return askForText(nullptr, &isOk); }, act);
            // A cancel tells the text, too.
            QVERIFY2(text == QLatin1String("new") && isOk == row.isOk && !last, row.name);
        }
        auto parent = std::make_unique<QWidget>();
        bool isOk = true;
        const auto text = withModalDialog([&] { return askForText(parent.get(), &isOk); },
                                          [&parent](QDialog*) { parent.reset(); });
        QCOMPARE(text, QStringLiteral("old"));
        QVERIFY(!isOk);
    }

    void asksForANumberInItsRange()
    {
        const struct {
            int value;
            int expected;
        } rows[] = {{-7, 5}, {150, 150}, {5000, 200}};
        for (const auto& row : rows) {
            bool isOk = false;
            const auto ask = [&] {
                return InputDialog::getInteger(nullptr, kTitle, kText, row.value, 5, 200, 10,
                                               &isOk);
            };
            QCOMPARE(withModalDialog(ask, pressing("Ok")), row.expected);
            QVERIFY(isOk);
            const auto typeAndCancel = [](QDialog* dialog) {
                QTest::keyClicks(dialog->focusWidget(), QStringLiteral("42"));
                pressing("Cancel")(dialog);
            };
            QCOMPARE(withModalDialog(ask, typeAndCancel), 42);
            QVERIFY(!isOk);
        }
    }

    void filesAreSoughtWhereTheLastWereChosen()
    {
        const auto open = [] {
            FileDialog::getOpenFileNames(nullptr, kTitle);
        };
        const auto save = [] {
            FileDialog::getSaveFileName(nullptr, kTitle);
        };
        QDir pictures(QStandardPaths::writableLocation(QStandardPaths::PicturesLocation));
        pictures.removeRecursively();
        QCOMPARE(folderOfferedBy(open), QDir::homePath());
        QVERIFY(pictures.mkpath(QStringLiteral(".")));
        QCOMPARE(folderOfferedBy(save), pictures.path());
        QTemporaryDir folder;
        const QString file = folder.filePath(QStringLiteral("a.png"));
        QCOMPARE(folderOfferedBy(open, file), pictures.path());
        QCOMPARE(folderOfferedBy(open), folder.path());
        QCOMPARE(folderOfferedBy(save), folder.path());
        // One that is gone meanwhile counts as none.
        QVERIFY(folder.remove());
        QCOMPARE(folderOfferedBy(open), pictures.path());
    }

    void messagesAnswerWithTheirButton()
    {
        const struct {
            const char* text;
            int result;
        } rows[] = {{"Ok", 0x400},        {"Cancel", 0x400000}, {"No", 0x10000},
                    {"Yes", 0x4000},      {"Abort", 0x40000},   {"Retry", 0x80000},
                    {"Ignore", 0x100000}, {"YesAll", 0x8000},   {"NoAll", 0x20000}};
        QMessageBox::StandardButtons all = QMessageBox::NoButton;
        for (const auto& row : rows) {
            all |= QMessageBox::StandardButton(row.result);
        }
        MMessageBox box(4, kTitle, kText, all, nullptr);
        for (const auto& row : rows) {
            pressing(row.text)(&box);
            QVERIFY2(box.result() == row.result, row.text);
        }
        // Deliberate: of the two, Enter presses No.
        const auto ask = [] {
            return MMessageBox::question(nullptr, kTitle, kText,
                                         QMessageBox::Yes | QMessageBox::No);
        };
        QCOMPARE(withModalDialog(ask, striking(Qt::Key_Return)), 0x10000);
    }

    void theEndOfALongMessageShows()
    {
        const QString words = QStringLiteral("words and ");
        for (const QString& text :
             {QString(60, QLatin1Char('m')), words.repeated(60), words.repeated(2000)}) {
            const auto pictureOf = [&text](QLatin1Char last) {
                MMessageBox box(2, kTitle, text + last, QMessageBox::Yes, nullptr);
                box.show();
                const QRect screen(QPoint(), box.screen()->availableSize());
                const QRect ok = buttonOf(&box, QStringLiteral("Yes"))->geometry();
                if (!QRect(QPoint(), box.size()).contains(ok) ||
                    !screen.contains(QRect(QPoint(), box.size()))) {
                    return QImage();
                }
                QTest::keyClick(&box, Qt::Key_Tab); // to the bar of a text that scrolls
                QTest::keyClick(box.focusWidget(), Qt::Key_End);
                return box.grab().toImage();
            };
            // Both digits have the same width, so the pictures differ only where they show.
            QVERIFY2(pictureOf(QLatin1Char('0')) != pictureOf(QLatin1Char('8')),
                     qPrintable(QString::number(text.size())));
        }
    }

    void anyOtherEndOfAMessageGivesZero()
    {
        QPointer<QDialog> last;
        const auto ask = [] {
            return MMessageBox::warning(nullptr, kTitle, kText, QMessageBox::NoButton);
        };
        const auto escape = [&last](QDialog* box) {
            last = box;
            QVERIFY(box->findChildren<QPushButton*>().isEmpty());
            striking(Qt::Key_Return)(box);
            QVERIFY(box->isVisible());
            striking(Qt::Key_Escape)(box);
        };
        QCOMPARE(withModalDialog(ask, escape), 0);
        QVERIFY(!last);
        QCOMPARE(withModalDialog(ask, [](QDialog* box) { box->close(); }), 0);
    }
};

TESSARIN_TEST(tst_Dialogs);
#include "tst_Dialogs.moc"
