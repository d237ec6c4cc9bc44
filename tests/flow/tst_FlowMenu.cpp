#include "SavedFlowTesting.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"

#include <QDir>
#include <QDirIterator>

namespace
{

const QString kBinary = QStringLiteral("Binarization");
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
        const QList<QAction*> actions = flow.favorites()->actions();
        QStringList commands;
        for (const QAction* action : actions) {
            commands += action->text();
            QCOMPARE(action->icon().isNull(), action->isSeparator());
        }
        QCOMPARE(commands,
                 QStringList({"&Clear", "&Save...", "&Delete...", "&Go To Flows Location", ""}));
        UrlCatcher opened;
        flow.chooseFavorite(QStringLiteral("&Go To Flows Location"));
        const QList<QUrl> urls = opened.take();
        QCOMPARE(urls.size(), 1);
        QCOMPARE(QDir(urls.first().toLocalFile()), QDir(flowsFolder()));

        const auto canSave = [&flow] {
            return flow.favorites()->actions().at(1)->isEnabled();
        };
        QVERIFY(!canSave());
        flow.add(kBlur);
        QVERIFY(canSave());
        flow.panel.rebuildFavoritesMenu();
        QVERIFY(canSave());
        flow.chooseFavorite(QStringLiteral("&Clear"));
        QVERIFY(!canSave());
        flow.panel.rebuildFavoritesMenu();
        QVERIFY(!canSave());
    }

    void namesGetTheirExtension_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("file");
        QTest::newRow("cancelled") << QString() << "";
        QTest::newRow("without") << "a"
                                 << "a.flow";
        QTest::newRow("with") << "a.flow"
                              << "a.flow";
        QTest::newRow("in capitals") << "a.FLOW"
                                     << "a.FLOW.flow";
        QTest::newRow("none typed") << ""
                                    << ".flow";
        QTest::newRow("dots and signs") << "..R&B <i>\\"
                                        << "..R&B <i>\\.flow";
        QTest::newRow("another folder") << "../a"
                                        << "";
        QTest::newRow("a folder within") << "within/a"
                                         << "";
        QTest::newRow("from the root") << QDir::homePath() + "/a"
                                       << "";
        QTest::newRow("a zero") << QString(QStringLiteral("a") + QChar(0) + "b") << "";
        QTest::newRow("too long") << QString(300, QChar('a')) << "";
    }

    void namesGetTheirExtension()
    {
        QFETCH(QString, typed);
        QFETCH(QString, file);
        QVERIFY(QDir(flowsFolder()).mkdir(QStringLiteral("within")));
        Flow flow;
        flow.add(kBlur);
        QStringList expected = homeFiles();
        save(flow, typed);
        if (!file.isEmpty()) {
            expected += flowsFolder() + file;
            expected.sort();
        }
        QCOMPARE(homeFiles(), expected);
    }

    void aFlowIsOverwrittenOnlyByYes()
    {
        Flow flow;
        flow.add(kBlur);
        QStringList asked;
        const auto answering = [&asked](const std::function<void(QDialog*)>& answer) {
            return [&asked, answer](QDialog* dialog) {
                asked = labelTexts(dialog) << dialog->windowTitle();
                answer(dialog);
            };
        };
        put(QStringLiteral("a.flow"), "former");
        save(flow, QStringLiteral("a"), answering(press(QStringLiteral("No"))));
        QVERIFY(asked.contains(
            QStringLiteral("The flow the with name \"a.flow\" already exists.\nOverwrite?")));
        QVERIFY(asked.contains(QStringLiteral("Warning")));
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("former"));
        save(flow, QStringLiteral("a"), answering([](QDialog* dialog) { dialog->reject(); }));
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("former"));
        save(flow, QStringLiteral("a"), answering(press(QStringLiteral("Yes"))));
        QVERIFY(content(QStringLiteral("a.flow")).startsWith("<OperationsFlow>"));
        QCOMPARE(savedNames(flow), QStringList(QStringLiteral("a.flow")));

        put(QStringLiteral("<b>x.flow"), "former");
        save(flow, QStringLiteral("<b>x"), answering(press(QStringLiteral("No"))));
        QVERIFY(asked.join(QString()).contains(QStringLiteral("&lt;b&gt;x.flow")));
    }

    void aMnemonicIsNoPartOfTheName()
    {
        Flow flow;
        flow.add(kBlur);
        flow.panel.writeFlow(QStringLiteral("RB.flow"));
        flow.add(kBinary);
        flow.panel.writeFlow(QStringLiteral("R&B.flow"));
        flow.panel.rebuildFavoritesMenu();
        QCOMPARE(savedNames(flow), QStringList({"R&&B.flow", "RB.flow"}));
        flow.chooseFavorite(QStringLiteral("RB.flow"));
        QCOMPARE(flow.names(), QStringList(kBlur));
        // Some desktops mark a letter of their own.
        flow.favorites()->actions().at(5)->setText(QStringLiteral("x&y"));
        flow.favorites()->actions().at(6)->setText(QStringLiteral("y&x"));
        flow.favorites()->actions().at(5)->trigger();
        const int nodes = flow.names().size();
        flow.favorites()->actions().at(6)->trigger();
        QCOMPARE(nodes + flow.names().size(), 3);
    }

    void deletingAsksTwice()
    {
        put(QStringLiteral("a.flow"), "a");
        Flow flow;
        QStringList asked;
        const auto remove = [&flow](std::initializer_list<std::function<void(QDialog*)>> acts) {
            withModalDialogs([&flow] { flow.chooseFavorite(QStringLiteral("&Delete...")); }, acts);
        };
        const auto choose = press(QStringLiteral("&Delete"));
        const auto ask = [&asked](const QString& caption) {
            return [&asked, caption](QDialog* dialog) {
                asked += labelTexts(dialog) << dialog->windowTitle();
                press(caption)(dialog);
            };
        };
        const auto unasked = [](QDialog*) {
            QFAIL("a question");
        };
        remove({press(QStringLiteral("&Cancel")), unasked});
        remove({choose, [](QDialog* dialog) {
                    dialog->reject();
                }});
        remove({choose, ask(QStringLiteral("No"))});
        QVERIFY(asked.contains(QStringLiteral("Remove the flow:\n \"a.flow\"?")));
        QVERIFY(asked.contains(QStringLiteral("Warning")));
        QCOMPARE(savedNames(flow), QStringList(QStringLiteral("a.flow")));
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("a"));
        remove({choose, ask(QStringLiteral("Yes"))});
        QCOMPARE(savedNames(flow), QStringList());
        QCOMPARE(content(QStringLiteral("a.flow")), QByteArray("missing"));
        remove({choose, unasked});

        put(QStringLiteral("b.flow"), "b");
        flow.panel.rebuildFavoritesMenu();
        QVERIFY(QFile::remove(flowsFolder() + "b.flow"));
        remove({choose, ask(QStringLiteral("Yes"))});
        QCOMPARE(savedNames(flow), QStringList());
    }
};

TESSARIN_TEST(TestFlowMenu);
#include "tst_FlowMenu.moc"
