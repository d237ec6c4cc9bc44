#include "flow/XmlBounds.h"
#include "FlowTesting.h"
#include "NodeTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QSignalSpy>

namespace
{

/// An element of a flow. The parameters are told by a text, or by the number of a threshold.
QString operation(const char* index, const QString& parameters = QString(),
                  const char* name = "Binarization")
{
    bool isNumber = false;
    parameters.toInt(&isNumber);
    return QStringLiteral("<Operation name=\"%1\" index=\"%2\">%3</Operation>")
        .arg(QLatin1String(name), QLatin1String(index),
             isNumber ? QStringLiteral("<P><Threshold>%1</Threshold></P>").arg(parameters)
                      : parameters);
}

QString flowOf(const QString& content)
{
    return QStringLiteral("<F>") + content + QStringLiteral("</F>");
}

QString nested(int levels)
{
    return QStringLiteral("<a>").repeated(levels) + QStringLiteral("</a>").repeated(levels);
}

/// What a flow holds: of each binarization its threshold, of others the name.
QStringList held(Flow& flow)
{
    QStringList held;
    for (BaseNode* node : flow.options.flow()) {
        const QString last = written(*node).last().section(QLatin1Char('='), 1);
        held += node->name() == QLatin1String("Binarization") ? last : node->name();
        held.last() += QLatin1String(node->isActive() ? "" : " off");
    }
    return held;
}

} // namespace

/// Texts that no program wrote, or none of this kind.
class TestFlowReading : public QObject
{
    Q_OBJECT

private slots:
    void readsWhatItUnderstands()
    {
        const QString five = flowOf(operation("0", "5"));
        Photos files;
        files.addFile(QStringLiteral("f.dtd"), "<!ENTITY t '5'>");
        const QString outside = files.path(QStringLiteral("f.dtd"));
        const struct {
            const char* name;
            QString xml;
            QStringList expected;
        } rows[] = {
            {"in the order of the indexes",
             flowOf(operation("5", "5") + operation("2", "2") + operation("9", "9")),
             {"2", "5", "9"}},
            {"an index twice", flowOf(operation("0", "1") + operation("0", "2")), {"2"}},
            {"indexes at the limits",
             flowOf(operation("-1") + operation("99") + operation("100") + operation("150")),
             {"127"}},
            {"no number as an index",
             flowOf(operation("") + operation("first") + operation("1.0") + operation("0x1") +
                    operation("7")),
             {"127"}},
            {"no index at all", "<F><Operation name='Blur'/></F>", {}},
            {"unknown operations between others",
             flowOf(operation("0", "", "Blur") + operation("1", "", "Sharpen") +
                    operation("2", "", "binarization") + "<Operation index='3'/>" + operation("4")),
             {"Blur", "127"}},
            {"other elements, and operations elsewhere",
             flowOf("text<operation name='Blur' index='0'/><!-- c --><Group>" +
                    operation("1", "", "Blur") + "</Group>" + operation("2")),
             {"127"}},
            {"a comment before the parameters",
             flowOf(operation("0", "<!-- mine --><P><Threshold>5</Threshold></P>")),
             {"127"}},
            {"unknown and missing tags, a bad number",
             flowOf(operation("0", "<P><Radius>9</Radius><Threshold>many</Threshold></P>")),
             {"127"}},
            {"a number beyond the range", flowOf(operation("0", "999")), {"255"}},
            {"active or not",
             flowOf(operation("0", "<P><Active>YES</Active></P>") +
                    operation("1", "<P><Active>1</Active></P>") +
                    operation("2", "<P><active>no</active></P>")),
             {"127", "127 off", "127"}},
            {"a declaration and a bare document type",
             "<?xml version='1.0' encoding='latin1'?><!DOCTYPE F>" + five,
             {"5"}},
            {"a document type of quoted names",
             "<!DOCTYPE F PUBLIC \"-//F\" '[\">'>" + five,
             {"5"}},
            {"an entity declared elsewhere",
             QStringLiteral("<!DOCTYPE F SYSTEM '%1'>").arg(QUrl::fromLocalFile(outside).url()) +
                 flowOf(operation("0", "<P><Threshold>&t;</Threshold></P>")),
             {"127"}},
            {"an empty text", "", {}},
            {"no XML", "Operation", {}},
            {"cut off", five.chopped(4), {}},
            {"rubbish after the end", five + 'x', {}},
            {"declared entities",
             "<!DOCTYPE F [<!ENTITY t \"5\">]>" +
                 flowOf(operation("0", "<P><Threshold>&t;</Threshold></P>")),
             {}},
            {"declared parts after a quoted name", "<!DOCTYPE F SYSTEM '>' [<!-- -->]>" + five, {}},
            {"deep, but bearable",
             flowOf(operation("0", "<P><Threshold>5</Threshold>" + nested(250) + "</P>")),
             {"5"}},
            {"too deep", flowOf(operation("0", nested(300000))), {}},
        };
        for (const auto& row : rows) {
            Flow flow;
            flow.add(QStringLiteral("Blur"));
            QSignalSpy changed(&flow.panel, &FlowPanel::flowChanged);
            flow.panel.loadFlow(row.xml);
            QVERIFY2(held(flow) == row.expected, row.name);
            QCOMPARE(flow.names().size(), row.expected.size());
            QCOMPARE(flow.bar->currentIndex(), row.expected.size() - 1);
            QCOMPARE(changed.count(), 1);
        }
    }

    void loadingRunsTheWholeFlowOnce()
    {
        Flow flow;
        flow.options.setImage(noise(QSize(30, 20), 1));
        QSignalSpy runs(&flow.options, &NodesOptionsPanel::imageChanged);
        flow.panel.loadFlow(flowOf(operation("0", "5") + operation("1")));
        QCOMPARE(runs.count(), 1);
        QVERIFY(!flow.thumbnail(1).isNull());
    }

    void boundsHoldWhereverTheTextHidesThings()
    {
        const struct {
            QString before;
            QString each;
        } rows[] = {{"<!-- ' > \" -->", "<a>"},
                    {"<![CDATA[ <!-- ' ]]>", "<a>"},
                    {"<?x ' <!-- ?>", "<a>"},
                    {"<b c='/>' d=\"'\">", "<a b='/>'>"},
                    {"<!DOCTYPE a '> <!-- '>", "<a>"},
                    {"<!DOCTYPE a SYSTEM \"'><!--\">", "<a>"},
                    {"<b></b><b/>", "<a >"},
                    {"<a ", "b=''"}, // attributes
                    {"<a>", "<b/>"}, // siblings
                    {"<a>", "&b;"}}; // entities
        for (const auto& row : rows) {
            QVERIFY2(!isXmlWithinBounds(row.before + row.each.repeated(1100000)),
                     qPrintable(row.before + row.each));
        }
    }
};

TESSARIN_TEST(TestFlowReading);
#include "tst_FlowReading.moc"
