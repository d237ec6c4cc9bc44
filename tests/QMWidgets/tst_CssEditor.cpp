#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMWidgets/CssDoc.h>
#include <QMWidgets/CssEditor.h>
#include <QTemporaryDir>

using QMWidgets::CssDoc;
using QMWidgets::CssEditor;

namespace
{

const QString kSheet = QStringLiteral("QLabel { color: #010203; } /* \u00e4 */\n");

void trigger(const CssEditor& editor, const char* text)
{
    for (QAction* action : editor.findChildren<QAction*>()) {
        if (action->text() == QLatin1String(text)) {
            action->trigger();
        }
    }
}

/// Triggers an action that asks for a file, and answers with that name, or cancels.
void triggerWithFile(const CssEditor& editor, const char* text, const QString& name)
{
    withModalDialog([&] { trigger(editor, text); },
                    [&name](QDialog* dialog) {
                        if (!name.isEmpty()) {
                            // In the list, too: what is marked there goes before the text.
                            static_cast<QFileDialog*>(dialog)->selectFile(name);
                            dialog->findChild<QLineEdit*>()->setText(name);
                            // Even for a file that isn't there, which it would ask about.
                            dialog->QDialog::accept();
                        }
                    });
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_CssEditor : public QObject
{
    Q_OBJECT

private slots:
    void savesAndLoads()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("look.qss"));
        const QString missing = folder.filePath(QStringLiteral("missing/look.qss"));
        CssEditor editor;
        auto* const doc = editor.findChild<CssDoc*>();
        const QString title = editor.windowTitle();
        doc->setPlainText(kSheet);
        triggerWithFile(editor, "&Save", QString());
        QCOMPARE(editor.windowTitle(), title);
        triggerWithFile(editor, "&Save", path);
        QCOMPARE(contentOf(path), kSheet.toUtf8());
        // A name that can't be written to is not kept.
        triggerWithFile(editor, "S&ave As...", missing);
        QCOMPARE(editor.windowTitle(), path);
        doc->setPlainText(QStringLiteral("/**/"));
        trigger(editor, "&Save"); // knows its file now
        QCOMPARE(contentOf(path), QByteArray("/**/"));

        CssEditor other;
        triggerWithFile(other, "&Open...", path);
        triggerWithFile(other, "&Open...", missing);
        QCOMPARE(other.findChild<CssDoc*>()->toPlainText(), QStringLiteral("/**/"));
        QCOMPARE(other.windowTitle(), path);
    }
};

TESSARIN_TEST(tst_CssEditor);
#include "tst_CssEditor.moc"
