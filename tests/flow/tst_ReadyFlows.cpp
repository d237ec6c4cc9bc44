#include "SavedFlowTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QDir>
#include <QDomDocument>
#include <QRegularExpression>

namespace
{

const QString kFolder = QStringLiteral(TESSARIN_READY_FLOWS_FOLDER);

/// The flows that come with the documents, and the size of what each makes of kPhoto.
const struct {
    const char* file;
    int operations;
    QSize result;
} kFlows[] = {
    {"black-and-white-print.flow", 4, {660, 460}}, // a frame of 5 percent of 600
    {"contact-sheet.flow", 2, {416, 282}},         // 400 by 266 in a frame of 8
    {"scan-clean-up.flow", 3, {588, 392}},         // one percent off each side
    {"soft-vintage.flow", 5, {648, 448}},          // a frame of 4 percent of 600
    {"web-gallery.flow", 3, {1600, 1066}},
};
const QSize kPhoto(600, 400);

QStringList operationsTold(const QByteArray& xml)
{
    QDomDocument document;
    document.setContent(xml);
    const QDomNodeList elements = document.elementsByTagName(QStringLiteral("Operation"));
    QStringList names;
    for (int i = 0; i < elements.size(); ++i) {
        names += elements.at(i).toElement().attribute(QStringLiteral("name"));
    }
    return names;
}

/// Another font takes the place of one that this machine lacks, and is told instead.
QByteArray withoutFont(const QByteArray& xml)
{
    static const QRegularExpression family(QStringLiteral("<Font>[^<]+</Font>"));
    return QString::fromUtf8(xml).replace(family, QStringLiteral("<Font/>")).toUtf8();
}

} // namespace

class TestReadyFlows : public QObject
{
    Q_OBJECT

private slots:
    void init() { QVERIFY(QDir(flowsFolder()).removeRecursively()); }

    void eachFlowIsListed()
    {
        QStringList listed;
        for (const auto& flow : kFlows) {
            listed += QLatin1String(flow.file);
        }
        QCOMPARE(QDir(kFolder).entryList({QStringLiteral("*.flow")}, QDir::Files, QDir::Name),
                 listed);
    }

    void aFlowIsWrittenAsItWasRead_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<int>("operationCount");
        QTest::addColumn<QSize>("resultSize");
        for (const auto& flow : kFlows) {
            QTest::newRow(flow.file)
                << QString(QLatin1String(flow.file)) << flow.operations << flow.result;
        }
    }

    void aFlowIsWrittenAsItWasRead()
    {
        QFETCH(QString, file);
        QFETCH(int, operationCount);
        QFETCH(QSize, resultSize);
        QVERIFY(QFile::copy(QDir(kFolder).filePath(file), flowsFolder() + file));
        const QByteArray xml = content(file);
        Flow flow;
        flow.chooseFavorite(file);
        QCOMPARE(flow.names(), operationsTold(xml));
        QCOMPARE(flow.names().size(), operationCount);
        // Each parameter is known and within its control's range, or it would be told in another
        // way.
        flow.panel.writeFlow(QStringLiteral("again.flow"));
        QCOMPARE(withoutFont(content(QStringLiteral("again.flow"))), withoutFont(xml));

        const QImage photo = noise(kPhoto, 3, QImage::Format_ARGB32, true);
        QCOMPARE(throughTheBatch(flow, photo).size(), resultSize);
    }
};

TESSARIN_TEST(TestReadyFlows);
#include "tst_ReadyFlows.moc"
