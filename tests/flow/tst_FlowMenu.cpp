#include "SavedFlowTesting.h"
#include "support/TestMain.h"

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
                    {"/slash", "slash.flow"},
                    {"within/a", "within/a.flow"},
                    {"../a", nullptr},
                    {"/../a", nullptr},
                    {"within/../../a", nullptr},
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
        const QString file = QStringLiteral("<b>x.flow");
        Flow flow;
        flow.add(kBlur);
        put(file, "former");
        for (const char* refusal : {"No", ""}) {
            save(flow, file, [&](QDialog* dialog) {
                QVERIFY(
                    labelTexts(dialog).join(QString()).contains(QStringLiteral("&lt;b&gt;x.flow")));
                press(refusal)(dialog);
            });
            QCOMPARE(content(file), QByteArray("former"));
        }
        save(flow, file, press("Yes"));
        QVERIFY(content(file).startsWith("<OperationsFlow>"));
        QCOMPARE(savedNames(flow), QStringList(file));

        // No name is too long for it, and what a link leads to keeps its permissions.
        const QString longest = QString(250, QLatin1Char('x')) + QStringLiteral(".flow");
        const auto mine = QFile::ReadOwner | QFile::WriteOwner;
        put(longest, "former");
        QVERIFY(QFile::setPermissions(flowsFolder() + longest, mine));
        QVERIFY(QFile::link(flowsFolder() + longest, flowsFolder() + "link.flow"));
        for (const QString& name : {QStringLiteral("link"), longest}) {
            flow.add(kBlur);
            save(flow, name, press("Yes"));
            QCOMPARE(content(longest).count("Blur"), flow.names().size());
            QVERIFY(QFileInfo(flowsFolder() + "link.flow").isSymLink());
            QCOMPARE(QFile::permissions(flowsFolder() + longest) & (QFile::ReadOther | mine), mine);
        }
        QCOMPARE(savedNames(flow), QStringList({file, QStringLiteral("link.flow"), longest}));
        QCOMPARE(QDir(flowsFolder()).count(), 5U); // these, "." and ".."
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
    }

    void deletingAsksTwice()
    {
        put(QStringLiteral("a.flow"), "a");
        put(QStringLiteral("gone.flow"), "b");
        Flow flow;
        const auto choose = press("&Delete");
        const auto unasked = [](QDialog*) {
            QFAIL("a question");
        };
        QVERIFY(QFile::remove(flowsFolder() + "gone.flow"));
        remove(flow, {choose, press("Yes")}); // the last comes first
        QCOMPARE(savedNames(flow), QStringList(QStringLiteral("a.flow")));
        remove(flow, {press("&Cancel"), unasked});
        for (const char* refusal : {"", "No"}) {
            remove(flow, {choose, press(refusal)});
        }
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("a"));
        remove(flow, {choose, press("Yes")});
        QCOMPARE(savedNames(flow), QStringList());
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("missing"));
        remove(flow, {choose, unasked});
    }
};

TESSARIN_TEST(TestFlowMenu);
#include "tst_FlowMenu.moc"
