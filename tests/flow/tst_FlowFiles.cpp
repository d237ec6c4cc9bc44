#include "SavedFlowTesting.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "WatermarkTesting.h"
#include <QMWidgets/App.h>

#include <QDir>
#include <QTextCodec>

namespace
{

const QString kBlur = QStringLiteral("Blur");

/// All operations, with every parameter off what a new node has; the watermark's logo comes extra.
const struct {
    const char* name;
    const char* parameters;
} kTuned[] = {
    {"Brightness, Contrast, Saturation",
     "<Brightness>9</Brightness><Contrast>-7</Contrast><Saturation>40</Saturation>"},
    {"Crop", "<Left>3</Left><Right>5</Right><Top>7</Top><Bottom>9</Bottom>"},
    {"Resize", "<Mode>2</Mode><Width>70</Width><Height>60</Height>"},
    {"Rotate", "<Angle>-90</Angle>"},
    {"Mirror", "<Horizontal>no</Horizontal><Vertical>yes</Vertical>"},
    {"Watermark",
     "<Mode>1</Mode><Size>33</Size><Text> © Żółć 写真 😀 &lt;&amp;]]&gt; </Text>"
     "<Position>TopLeft</Position><Expand>yes</Expand><Bold>yes</Bold><Italic>yes</Italic>"
     "<Underlined>yes</Underlined><XOffset>3</XOffset><YOffset>-4</YOffset>"
     "<Transparency>11</Transparency><Color>#123456</Color><Background>#654321</Background>"
     "<BackgroundEnabled>no</BackgroundEnabled><Font>Courier</Font>"},
    {"Histogram optimizer", "<Left>2</Left><Right>3</Right>"},
    {"Vignetting", "<Radius>20</Radius><Opacity>30</Opacity><Color>#336699</Color>"},
    {"Frame", "<Width>6</Width><Color>#ff8800</Color>"},
    {"RGB-Order", "<Mode>2</Mode>"},
    {"Blur", "<Radius>1</Radius>"},
    {"Invert", ""},
    {"Binarization", "<Threshold>99</Threshold>"},
    {"Grayscale", ""},
};

/// What the flow tells of all its nodes.
QStringList texts(Flow& flow)
{
    QStringList all;
    for (BaseNode* node : flow.options.flow()) {
        all += node->name() + node->parametersText();
    }
    return all;
}

/// The system's encoding while it lives.
class LocaleCodec
{
public:
    explicit LocaleCodec(const char* name) { QTextCodec::setCodecForLocale(codec(name)); }
    ~LocaleCodec() { QTextCodec::setCodecForLocale(m_before); }
    static QTextCodec* codec(const char* name) { return QTextCodec::codecForName(name); }

private:
    QTextCodec* m_before = QTextCodec::codecForLocale();
};

} // namespace

class TestFlowFiles : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(flowsFolder()).removeRecursively()); }

    void aFlowOfAllOperationsComesBack()
    {
        const LocaleCodec system("ISO-8859-2");
        Photos files;
        files.add(QStringLiteral("logo.png"), QSize(20, 15), 4);
        const QImage photo = noise(QSize(150, 110), 5, QImage::Format_ARGB32, true);
        Flow flow;
        for (const auto& tuned : kTuned) {
            BaseNode* const node = flow.panel.addNode(QLatin1String(tuned.name));
            const QStringList fresh = written(*node);
            load(*node, QStringLiteral("<P>%1</P>").arg(QString::fromUtf8(tuned.parameters)));
            if (auto* mark = qobject_cast<WMRNode*>(node)) {
                browse(*mark, files.path(QStringLiteral("logo.png")));
            }
            const QStringList now = written(*node);
            for (int i = 1; i < now.size(); ++i) {
                QVERIFY2(now.at(i) != fresh.at(i), qPrintable(now.at(i)));
            }
        }
        load(*flow.panel.addNode(kBlur), QStringLiteral("<P><Active>no</Active></P>"));
        flow.panel.slotTabsDragged();
        QImage shown;
        connect(&flow.options, &NodesOptionsPanel::imageChanged, &flow.panel,
                [&shown](const QImage& image) { shown = image; });
        flow.options.setImage(photo);
        const QImage result = shown;
        const QStringList told = texts(flow);
        QCOMPARE(told.size(), operations().size() + 1);
        save(flow, QStringLiteral("all"));

        flow.chooseFavorite(QStringLiteral("&Clear"));
        COMPARE_IMAGES(shown, photo);
        flow.chooseFavorite(QStringLiteral("all.flow"));
        QCOMPARE(texts(flow), told);
        QCOMPARE(flow.names().size(), told.size());
        COMPARE_IMAGES(shown, result);
        QVERIFY(result.size() != photo.size());
        COMPARE_IMAGES(throughTheBatch(flow, photo), result);
    }

    void theFileIsPlainXmlInUtf8()
    {
        const LocaleCodec system("ISO-8859-1");
        Flow flow;
        flow.addAll({QStringLiteral("Binarization"), QStringLiteral("Invert")});
        const QByteArray expected("<OperationsFlow>\n"
                                  " <Operation name=\"Binarization\" index=\"0\">\n"
                                  "  <Parameters>\n"
                                  "   <Active>yes</Active>\n"
                                  "   <Threshold>127</Threshold>\n"
                                  "  </Parameters>\n"
                                  " </Operation>\n"
                                  " <Operation name=\"Invert\" index=\"1\">\n"
                                  "  <Parameters>\n"
                                  "   <Active>yes</Active>\n"
                                  "  </Parameters>\n"
                                  " </Operation>\n"
                                  "</OperationsFlow>\n");
        for (int i = 0; i < 20; ++i) {
            qSetGlobalQHashSeed(-1); // another one, as each start of the program brings it
            flow.panel.writeFlow(QStringLiteral("a.flow"));
            QCOMPARE(content(QStringLiteral("a.flow")), expected);
        }
        qSetGlobalQHashSeed(0);
    }

    void filesInOtherEncodingsAreRead()
    {
        const QString text = QStringLiteral("\u017B\u00F3\u0142\u0107");
        const QString xml = QStringLiteral("<F><Operation name='Watermark' index='0'><P><Text>%1"
                                           "</Text></P></Operation></F>")
                                .arg(text);
        const struct {
            QByteArray bytes;
            const char* locale;
        } rows[] = {{xml.toUtf8(), "ISO-8859-2"},
                    {"\xEF\xBB\xBF" + xml.toUtf8(), "US-ASCII"},
                    {LocaleCodec::codec("ISO-8859-2")->fromUnicode(xml), "ISO-8859-2"},
                    {LocaleCodec::codec("UTF-16")->fromUnicode(xml), "UTF-8"}};
        for (const auto& row : rows) {
            const LocaleCodec system(row.locale);
            put(QStringLiteral("a.flow"), row.bytes);
            Flow flow;
            flow.chooseFavorite(QStringLiteral("a.flow"));
            QCOMPARE(flow.names().size(), 1);
            QCOMPARE(told(*flow.node(0), "Text"), text);
        }
    }

    void textsOfAnyCharactersComeBack()
    {
        QString control;
        QString plane;
        for (ushort code = 0; code < 0x20; ++code) {
            control += QChar(code);
        }
        for (int code = 0x20; code < 0x10000; code += 7) {
            plane += QChar::isSurrogate(uint(code)) ? QChar('-') : QChar(code);
        }
        const QString smile = QString::fromUtf8("\U0001F600");
        const QString markup = QStringLiteral("<b>&amp;]]><!--\r\n");
        const struct {
            QString text;
            QString expected;
        } rows[] = {
            {control, "\t\n\r"},        {smile.at(1) + smile + smile.at(0) + 'a', smile + 'a'},
            {"a\uFFFEb\uFFFFc", "abc"}, {plane, plane},
            {"  \t ", "  \t "},         {markup, markup},
            {"\uFEFFa", "\uFEFFa"}};
        const QImage photo = noise(QSize(60, 40), 5, QImage::Format_ARGB32, true);
        for (const auto& row : rows) {
            Flow flow;
            flow.panel.slotAddWaterMarkNode();
            beside<QLineEdit>(*flow.node(0), "Text:")->setText(row.text);
            const QImage live = processed(*flow.node(0), photo);
            COMPARE_IMAGES(throughTheBatch(flow, photo), live);
            flow.panel.writeFlow(QStringLiteral("a.flow"));
            flow.panel.rebuildFavoritesMenu();
            flow.chooseFavorite(QStringLiteral("a.flow"));
            QCOMPARE(flow.names(), QStringList(QStringLiteral("Watermark")));
            QCOMPARE(beside<QLineEdit>(*flow.node(0), "Text:")->text(), row.expected);
            COMPARE_IMAGES(processed(*flow.node(0), photo), live);
        }
    }

    void whatCannotBeWrittenStaysAsItWas()
    {
        Flow flow;
        flow.add(kBlur);
        QVERIFY(QDir(flowsFolder()).mkpath(QStringLiteral("c.flow/d")));
        save(flow, QStringLiteral("c"), press("Yes"));
        QCOMPARE(QDir(flowsFolder()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList("c.flow"));

        QVERIFY(QDir(flowsFolder()).removeRecursively());
        const QString folder = QMWidgets::App::appHomeFolder(true) + QStringLiteral("Flows");
        QFile file(folder);
        QVERIFY(file.open(QIODevice::WriteOnly));
        save(flow, QStringLiteral("a"));
        QCOMPARE(savedNames(flow), QStringList());
        QVERIFY(file.remove());
    }

    void aFileThatCannotBeReadLeavesTheFlow()
    {
        for (const char* name : {"gone.flow", "folder.flow", "huge.flow"}) {
            put(QLatin1String(name), "<F/>");
        }
        Flow flow;
        flow.add(kBlur);
        QVERIFY(QFile::remove(flowsFolder() + "gone.flow"));
        QVERIFY(QFile::remove(flowsFolder() + "folder.flow"));
        QVERIFY(QDir(flowsFolder()).mkdir(QStringLiteral("folder.flow")));
        QVERIFY(QFile::resize(flowsFolder() + "huge.flow", (256 << 20) + 1));
        for (const QString& name : savedNames(flow)) {
            flow.chooseFavorite(name);
        }
        flow.panel.slotLoadFavorite();
        QCOMPARE(flow.names(), QStringList(kBlur));
    }
};

TESSARIN_TEST(TestFlowFiles);
#include "tst_FlowFiles.moc"
