#include "Results.h"

#include "Stage.h"
#include <QMWidgets/App.h>

#include <QDir>
#include <QImage>

QString resultsFolder()
{
    return QDir::cleanPath(QMWidgets::App::defaultOutputFolder(false));
}

QStringList batchFolders()
{
    const QDir folder(resultsFolder());
    QStringList paths;
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        paths.append(folder.filePath(name));
    }
    return paths;
}

void checkResults(Stage& stage, const QString& folder, const QVector<ExpectedResult>& expected)
{
    const QDir results(folder);
    stage.check(results.entryList(QDir::Files).size() == expected.size(),
                QStringLiteral("there are %1 results in %2").arg(expected.size()).arg(folder));
    for (const ExpectedResult& result : expected) {
        const QImage image(results.filePath(result.fileName));
        if (stage.check(!image.isNull(), QStringLiteral("%1 can be read").arg(result.fileName))) {
            stage.check(image.size() == result.size,
                        QStringLiteral("%1 has the right size").arg(result.fileName));
        }
    }
}
