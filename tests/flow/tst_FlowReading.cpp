#include "flow/XmlBounds.h"
#include "FlowTesting.h"
#include "NodeTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QSignalSpy>

namespace
{

/// A flow of the operations given, each as its index, the text of its element and its name.
QString flowOf(std::initializer_list<const char*> operations)
{
    QString xml = QStringLiteral("<OperationsFlow>");
    for (const char* operation : operations) {
        const QString text = QLatin1String(operation);
        xml += QStringLiteral("<Operation name=\"Binarization\" index=\"%1\">%2</Operation>")
                   .arg(text.section(QLatin1Char('|'), 0, 0), text.section(QLatin1Char('|'), 1));
    }
    return xml + QStringLiteral("</OperationsFlow>");
}

} // namespace

/// Texts that no program wrote, or none of this kind.
class TestFlowReading : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatItUnderstands_data()
    {
        QTest::addColumn<QString>("xml");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char* name, const QString& xml, const QStringList& expected) {
            QTest::newRow(name) << xml << expected;
        };
        const char* const five = "<P><Threshold>5</Threshold></P>";
        const auto one = [](const char* content) {
            return QStringLiteral("<F><Operation name=\"Binarization\" index=\"0\">%1</Operation>"
                                  "</F>")
                .arg(QLatin1String(content));
        };
        row("in the order of the indexes",
            flowOf({"5|<P><Threshold>5</Threshold></P>", "2|<P><Threshold>2</Threshold></P>",
                    "9|<P><Threshold>9</Threshold></P>"}),
            {"2", "5", "9"});
        row("an index twice",
            flowOf({"0|<P><Threshold>1</Threshold></P>", "0|<P><Threshold>2</Threshold></P>"}),
            {"2"});
        row("indexes at the limits", flowOf({"-1|", "99|", "100|", "150|"}), {"127"});
        row("no number as an index", flowOf({"|", "first|", "1.0|", "0x1|", "7|"}), {"127"});
        row("no index at all", QStringLiteral("<F><Operation name='Blur'/></F>"), {});
        row("an unknown operation between others",
            QStringLiteral("<F><Operation name='Blur' index='0'/><Operation name='Sharpen' "
                           "index='1'/><Operation index='2'/><Operation name='binarization' "
                           "index='3'/><Operation name='Binarization' index='4'/></F>"),
            {"Blur", "127"});
        row("other elements, and operations elsewhere",
            QStringLiteral("<F>text<operation name='Blur' index='0'/><!-- c --><Group><Operation "
                           "name='Blur' index='1'/></Group><Operation name='Binarization' "
                           "index='2'/></F>"),
            {"127"});
        row("no parameters", one(""), {"127"});
        row("parameters under another tag", one(five), {"5"});
        row("a comment before the parameters", one("<!-- mine --><P><Threshold>5</Threshold></P>"),
            {"127"});
        row("unknown and missing tags, a bad number",
            one("<P><Radius>9</Radius><Threshold>many</Threshold></P>"), {"127"});
        row("a number beyond the range", one("<P><Threshold>999</Threshold></P>"), {"255"});
        row("active in another case", one("<P><Active>YES</Active></P>"), {"127"});
        row("active by number", one("<P><Active>1</Active></P>"), {"127 off"});
        row("a declaration and a bare document type",
            QStringLiteral("<?xml version='1.0' encoding='latin1'?><!DOCTYPE F>") + one(five),
            {"5"});
        row("an empty text", QString(), {});
        row("no XML", QStringLiteral("Operation"), {});
        row("cut off", one(five).chopped(4), {});
        row("rubbish after the end", one(five) + QLatin1Char('x'), {});
        row("declared entities",
            QStringLiteral("<!DOCTYPE F [<!ENTITY t \"5\">]>") +
                one("<P><Threshold>&t;</Threshold></P>"),
            {});
        const auto nested = [](int levels) {
            return QStringLiteral("<a>").repeated(levels) + QStringLiteral("</a>").repeated(levels);
        };
        row("deep, but bearable",
            one(qPrintable(QStringLiteral("<P><Threshold>5</Threshold>%1</P>").arg(nested(250)))),
            {"5"});
        row("too deep", one(qPrintable(nested(300000))), {});
    }

    void readsWhatItUnderstands()
    {
        QFETCH(QString, xml);
        Flow flow;
        flow.add(QStringLiteral("Blur"));
        QSignalSpy changed(&flow.panel, &FlowPanel::flowChanged);
        flow.panel.loadFlow(xml);
        QStringList loaded;
        for (BaseNode* node : flow.options.flow()) {
            const QString last = written(*node).last().section(QLatin1Char('='), 1);
            loaded += node->name() == QLatin1String("Binarization") ? last : node->name();
            if (!node->isActive()) {
                loaded.last() += QStringLiteral(" off");
            }
        }
        QTEST(loaded, "expected");
        QCOMPARE(flow.names().size(), loaded.size());
        QCOMPARE(flow.bar->currentIndex(), loaded.size() - 1);
        QCOMPARE(changed.count(), 1);
    }

    void loadingRunsTheWholeFlowOnce()
    {
        Flow flow;
        flow.options.setImage(noise(QSize(30, 20), 1));
        QSignalSpy runs(&flow.options, &NodesOptionsPanel::imageChanged);
        flow.panel.loadFlow(flowOf({"0|<P><Threshold>5</Threshold></P>", "1|"}));
        QCOMPARE(runs.count(), 1);
        QVERIFY(!flow.thumbnail(1).isNull());
    }

    void boundsHoldWhereverTheTextHidesThings_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("each");
        QTest::newRow("after a comment") << "<!-- ' > \" -->"
                                         << "<a>";
        QTest::newRow("after a section") << "<![CDATA[ <!-- ' ]]>"
                                         << "<a>";
        QTest::newRow("after an instruction") << "<?x ' <!-- ?>"
                                              << "<a>";
        QTest::newRow("after a quoted end") << "<b c='/>' d=\"'\">"
                                            << "<a b='/>'>";
        QTest::newRow("after a quote in a document type") << "<!DOCTYPE a '> <!-- '>"
                                                          << "<a>";
        QTest::newRow("after closed ones") << "<b></b><b/>"
                                           << "<a >";
        QTest::newRow("attributes") << "<a "
                                    << "b=''";
        QTest::newRow("siblings") << "<a>"
                                  << "<b/>";
        QTest::newRow("entities") << "<a>"
                                  << "&b;";
    }

    void boundsHoldWhereverTheTextHidesThings()
    {
        QFETCH(QString, before);
        QFETCH(QString, each);
        QVERIFY(!isXmlWithinBounds(before + each.repeated(1100000)));
    }
};

TESSARIN_TEST(TestFlowReading);
#include "tst_FlowReading.moc"
