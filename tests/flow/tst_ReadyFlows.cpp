#include "SavedFlowTesting.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QDir>
#include <QRegularExpression>

namespace
{

const QString kFolder = QStringLiteral(TESSARIN_READY_FLOWS_FOLDER "/");

/// The flows that come with the documents, and the size of what each makes of kPhoto.
const struct {
    const char* file;
    QSize result;
} kFlows[] = {
    {"black-and-white-print.flow", {660, 460}}, // a frame of 5 percent of 600
    {"contact-sheet.flow", {416, 282}},         // 400 by 266 in a frame of 8
    {"scan-clean-up.flow", {588, 392}},         // one percent off each side
    {"soft-vintage.flow", {648, 448}},          // a frame of 4 percent of 600
    {"web-gallery.flow", {1600, 1066}},
    {":/sample.flow", {400, 468}}, // in the program; 66 pixels off two sides, and turned
};
const QSize kPhoto(600, 400);

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

    void aFlowIsWrittenAsItWasRead()
    {
        QStringList inDocuments = QDir(kFolder).entryList({QStringLiteral("*.flow")}, QDir::Files);
        for (const auto& row : kFlows) {
            const QString file = QLatin1String(row.file);
            const QString source = file.startsWith(QLatin1Char(':')) ? file : kFolder + file;
            inDocuments.removeOne(file);
            QVERIFY(QDir().mkpath(flowsFolder()));
            QFile::remove(flowsFolder() + QStringLiteral("a.flow"));
            QVERIFY2(QFile::copy(source, flowsFolder() + QStringLiteral("a.flow")), row.file);
            const QByteArray xml = content(QStringLiteral("a.flow"));
            Flow flow;
            flow.chooseFavorite(QStringLiteral("a.flow"));
            // Each parameter is known and within its control's range, or it would be told in
            // another way.
            flow.panel.writeFlow(QStringLiteral("again.flow"));
            QCOMPARE(withoutFont(content(QStringLiteral("again.flow"))), withoutFont(xml));

            const QImage photo = noise(kPhoto, 3, QImage::Format_ARGB32, true);
            QCOMPARE(throughTheBatch(flow, photo).size(), row.result);
        }
        QCOMPARE(inDocuments, QStringList());
    }
};

TESSARIN_TEST(TestReadyFlows);
#include "tst_ReadyFlows.moc"
