#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMWidgets/CssDoc.h>
#include <QMWidgets/CssEditor.h>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

using QMWidgets::CssDoc;
using QMWidgets::CssEditor;

namespace
{

const QString kSheet = QStringLiteral("QLabel { color: #010203; } /* \u00e4 */\n");

QAction* actionOf(const CssEditor& editor, const char* text)
{
    for (QAction* action : editor.findChildren<QAction*>()) {
        if (action->text() == QLatin1String(text)) {
            return action;
        }
    }
    return nullptr;
}

/// Triggers an action that asks for a file, and answers with that name, or cancels.
void triggerWithFile(QAction* action, const QString& name)
{
    withModalDialog([action] { action->trigger(); },
                    [&name](QDialog* dialog) {
                        if (!name.isEmpty()) {
                            // In the list, too: what is marked there goes before the text.
                            static_cast<QFileDialog*>(dialog)->selectFile(name);
                            dialog->findChild<QLineEdit*>()->setText(name);
                            static_cast<QFileDialog*>(dialog)->QDialog::accept();
                        }
                    });
}

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// One letter for each sign of a line: k key word, c comment, and a dot for the rest.
QString marks(const QTextBlock& line)
{
    QString marks(line.text().size(), QLatin1Char('.'));
    for (const QTextLayout::FormatRange& range : line.layout()->formats()) {
        const QLatin1Char mark(range.format.fontItalic() ? 'c' : 'k');
        for (int i = range.start; i < range.start + range.length; ++i) {
            marks[i] = mark;
        }
    }
    return marks;
}

} // namespace

class tst_CssEditor : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { qApp->setStyleSheet(QString()); }

    void appliesByKeyAndResets()
    {
        CssEditor editor;
        editor.show();
        QVERIFY(QTest::qWaitForWindowActive(&editor));
        QCOMPARE(editor.statusBar()->currentMessage(), QStringLiteral("Ready"));
        auto* const doc = editor.findChild<CssDoc*>();
        const QString look = doc->styleSheet();
        QCOMPARE(look, QStringLiteral("QTextEdit{background: #000060; color: yellow;}"));
        doc->setPlainText(kSheet);
        QTest::keyClick(doc, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(qApp->styleSheet(), kSheet);
        QCOMPARE(doc->styleSheet(), look);
        QCOMPARE(doc->font().pointSize(), 12);
        actionOf(editor, "&Reset")->trigger();
        QVERIFY(qApp->styleSheet().isEmpty());
    }

    void savesAndLoads()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("look.qss"));
        CssEditor editor;
        auto* const doc = editor.findChild<CssDoc*>();
        const QString title = editor.windowTitle();
        doc->setPlainText(kSheet);
        QAction* const save = actionOf(editor, "&Save");
        triggerWithFile(save, QString());
        QCOMPARE(editor.windowTitle(), title);
        triggerWithFile(save, path);
        QCOMPARE(contentOf(path), kSheet.toUtf8());
        QCOMPARE(editor.windowTitle(), path);
        doc->setPlainText(QStringLiteral("/**/"));
        save->trigger(); // knows its file now
        QCOMPARE(contentOf(path), QByteArray("/**/"));
        // A name that can't be written to is not kept.
        triggerWithFile(actionOf(editor, "S&ave As..."),
                        folder.filePath(QStringLiteral("missing/look.qss")));
        QCOMPARE(editor.windowTitle(), path);
        doc->setPlainText(QStringLiteral("/* */"));
        save->trigger();
        QCOMPARE(contentOf(path), QByteArray("/* */"));

        CssEditor other;
        triggerWithFile(actionOf(other, "&Open..."), path);
        QCOMPARE(other.findChild<CssDoc*>()->toPlainText(), QStringLiteral("/* */"));
        QCOMPARE(other.windowTitle(), path);
        triggerWithFile(actionOf(other, "&Open..."), folder.filePath(QStringLiteral("missing")));
        QCOMPARE(other.windowTitle(), path);
    }

    void toolTipsTellTheSelector()
    {
        CssEditor editor;
        QPushButton named;
        named.setObjectName(QStringLiteral("NamedButton"));
        named.setToolTip(QStringLiteral("Press"));
        QPushButton nameless;
        QWidget* const inner = new QWidget(&nameless);
        inner->setObjectName(QStringLiteral("Inner"));
        for (int i = 0; i < 2; ++i) {
            actionOf(editor, "&SetInfo")->trigger();
            QCOMPARE(named.toolTip(), QStringLiteral("Press\nQPushButton\nNamedButton"));
            QCOMPARE(nameless.toolTip(), QString());
            QCOMPARE(inner->toolTip(), QStringLiteral("QWidget\nInner"));
        }
    }

    void marksKeyWordsAndComments()
    {
        CssDoc doc;
        const struct {
            const char* text;
            const char* marks;
        } lines[] = {{"class a:public b{", "kkkkk...kkkkkk..."},
                     {"classes true,Case", "........kkkk....."},
                     {"bool/* char */char", "kkkkcccccccccckkkk"},
                     {"x /* this", "..ccccccc"},
                     {"const", "ccccc"},
                     {"*/const /*/ */", "cckkkkk.cccccc"},
                     {"emit", "kkkk"}};
        QStringList texts;
        for (const auto& line : lines) {
            texts.append(QLatin1String(line.text));
        }
        doc.setPlainText(texts.join(QLatin1Char('\n')));
        QTextBlock block = doc.document()->begin();
        for (const auto& line : lines) {
            QCOMPARE(marks(block), QLatin1String(line.marks));
            block = block.next();
        }
    }
};

TESSARIN_TEST(tst_CssEditor);
#include "tst_CssEditor.moc"
