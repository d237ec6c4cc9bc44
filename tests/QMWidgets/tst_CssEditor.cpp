#include "support/ModalDialog.h"
#include "support/TestMain.h"

#include <QAction>
#include <QFileDialog>
#include <QLineEdit>
#include <QMWidgets/CssDoc.h>
#include <QMWidgets/CssEditor.h>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

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
        auto* const doc = editor.findChild<CssDoc*>();
        const QString look = doc->styleSheet();
        QCOMPARE(look, QStringLiteral("QTextEdit{background: #000060; color: yellow;}"));
        doc->setPlainText(kSheet);
        QTest::keyClick(doc, Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(qApp->styleSheet(), kSheet);
        QCOMPARE(doc->styleSheet(), look);
        QCOMPARE(doc->font().pointSize(), 12);
        trigger(editor, "&Reset");
        QVERIFY(qApp->styleSheet().isEmpty());
    }

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

    void toolTipsTellTheSelectorOnce()
    {
        CssEditor editor;
        QPushButton button;
        QWidget* const inner = new QWidget(&button);
        inner->setObjectName(QStringLiteral("Inner"));
        inner->setToolTip(QStringLiteral("Tip"));
        for (int i = 0; i < 2; ++i) {
            trigger(editor, "&SetInfo");
            QCOMPARE(button.toolTip(), QString());
            QCOMPARE(inner->toolTip(), QStringLiteral("Tip\nQWidget\nInner"));
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
