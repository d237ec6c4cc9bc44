#include "SavedFlowTesting.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDir>
#include <QDirIterator>

namespace
{

const QString kBlur = QStringLiteral("Blur");

/// Everything below the home folder of the test.
QStringList homeFiles()
{
    QStringList files;
    QDirIterator all(QDir::homePath(), QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                     QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files += all.next();
    }
    files.sort();
    return files;
}

/// Presses a button of a question, and keeps what was asked.
std::function<void(QDialog*)> answer(QString& asked, const QString& caption)
{
    return [&asked, caption](QDialog* dialog) {
        asked = dialog->windowTitle() + labelTexts(dialog).join(QString());
        caption.isEmpty() ? dialog->reject() : buttonOf(dialog, caption)->click();
    };
}

void remove(Flow& flow, std::initializer_list<std::function<void(QDialog*)>> acts)
{
    withModalDialogs([&flow] { flow.chooseFavorite(QStringLiteral("&Delete...")); }, acts);
}

} // namespace

/// The menu of flows and its dialogs.
class TestFlowMenu : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(flowsFolder()).removeRecursively()); }

    void theMenuHoldsCommandsAndFlows()
    {
        Flow flow;
        QStringList commands;
        for (const QAction* action : flow.favorites()->actions()) {
            commands += action->text();
            QCOMPARE(action->icon().isNull(), action->isSeparator());
        }
        QCOMPARE(commands,
                 QStringList({"&Clear", "&Save...", "&Delete...", "&Go To Flows Location", ""}));
        UrlCatcher opened;
        flow.chooseFavorite(QStringLiteral("&Go To Flows Location"));
        QCOMPARE(QDir(opened.take().value(0).toLocalFile()), QDir(flowsFolder()));

        for (const bool isEmpty : {true, false, true}) {
            isEmpty ? flow.chooseFavorite(QStringLiteral("&Clear")) : flow.add(kBlur);
            QCOMPARE(flow.favorites()->actions().at(1)->isEnabled(), !isEmpty);
            flow.panel.rebuildFavoritesMenu();
            QCOMPARE(flow.favorites()->actions().at(1)->isEnabled(), !isEmpty);
        }
    }

    void namesGetTheirExtensionAndStayInTheFolder()
    {
        const struct {
            QString typed;
            const char* file;             ///< null if nothing is to be saved
        } rows[] = {{QString(), nullptr}, // cancelled
                    {"a", "a.flow"},
                    {"b.flow", "b.flow"},
                    {"a.FLOW", "a.FLOW.flow"},
                    {"", ".flow"},
                    {"..R&B <i>\\", "..R&B <i>\\.flow"},
                    {"../a", nullptr},
                    {"within/a", nullptr},
                    {QDir::homePath() + "/a", nullptr},
                    {QStringLiteral("c") + QChar(0) + "d", nullptr},
                    {QString(300, QChar('a')), nullptr}};
        QVERIFY(QDir(flowsFolder()).mkdir(QStringLiteral("within")));
        Flow flow;
        flow.add(kBlur);
        QStringList expected = homeFiles();
        for (const auto& row : rows) {
            save(flow, row.typed);
            if (row.file) {
                expected += flowsFolder() + row.file;
                expected.sort();
            }
            QCOMPARE(homeFiles(), expected);
        }
    }

    void aFlowIsOverwrittenOnlyByYes()
    {
        const struct {
            QString name;
            QString question;
        } rows[] = {{"a", "The flow the with name \"a.flow\" already exists.\nOverwrite?"},
                    {"<b>x", "&lt;b&gt;x.flow"}};
        for (const auto& row : rows) {
            const QString file = row.name + ".flow";
            Flow flow;
            flow.add(kBlur);
            put(file, "former");
            QString asked;
            for (const char* refusal : {"No", ""}) {
                save(flow, row.name, answer(asked, QLatin1String(refusal)));
                QVERIFY(asked.contains(QStringLiteral("Warning")));
                QVERIFY2(asked.contains(row.question), qPrintable(asked));
                QCOMPARE(content(file), QByteArray("former"));
            }
            save(flow, row.name, answer(asked, QStringLiteral("Yes")));
            QVERIFY(content(file).startsWith("<OperationsFlow>"));
            QVERIFY(savedNames(flow).contains(file));
        }
    }

    void aMnemonicIsNoPartOfTheName()
    {
        Flow flow;
        flow.add(kBlur);
        flow.panel.writeFlow(QStringLiteral("RB.flow"));
        flow.add(QStringLiteral("Binarization"));
        flow.panel.writeFlow(QStringLiteral("R&B.flow"));
        flow.panel.rebuildFavoritesMenu();
        QCOMPARE(savedNames(flow), QStringList({"R&&B.flow", "RB.flow"}));
        flow.chooseFavorite(QStringLiteral("RB.flow"));
        QCOMPARE(flow.names(), QStringList(kBlur));
        // Some desktops mark a letter of their own.
        QList<int> sizes;
        for (QAction* entry : flow.favorites()->actions().mid(5)) {
            entry->setText(QStringLiteral("x&y"));
            entry->trigger();
            sizes += flow.names().size();
        }
        std::sort(sizes.begin(), sizes.end());
        QCOMPARE(sizes, QList<int>({1, 2}));
    }

    void deletingAsksTwice()
    {
        put(QStringLiteral("a.flow"), "a");
        Flow flow;
        const auto choose = press(QStringLiteral("&Delete"));
        const auto unasked = [](QDialog*) {
            QFAIL("a question");
        };
        QString asked;
        remove(flow, {press(QStringLiteral("&Cancel")), unasked});
        for (const char* refusal : {"", "No"}) {
            remove(flow, {choose, answer(asked, QLatin1String(refusal))});
            QVERIFY(asked.startsWith(QStringLiteral("Warning")));
            QVERIFY(asked.contains(QStringLiteral("Remove the flow:\n \"a.flow\"?")));
        }
        QCOMPARE(savedNames(flow), QStringList(QStringLiteral("a.flow")));
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("a"));
        remove(flow, {choose, answer(asked, QStringLiteral("Yes"))});
        QCOMPARE(savedNames(flow), QStringList());
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("missing"));
        remove(flow, {choose, unasked});

        put(QStringLiteral("b.flow"), "b");
        flow.panel.rebuildFavoritesMenu();
        QVERIFY(QFile::remove(flowsFolder() + "b.flow"));
        remove(flow, {choose, answer(asked, QStringLiteral("Yes"))});
        QCOMPARE(savedNames(flow), QStringList());
    }
};

TESSARIN_TEST(TestFlowMenu);
#include "tst_FlowMenu.moc"
