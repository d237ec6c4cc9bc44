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
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        paths.append(folder.filePath(name));
    }
    return paths;
}

QString folderMadeSince(Stage& stage, const QStringList& before)
{
    QStringList made = batchFolders();
    for (const QString& folder : before) {
        made.removeAll(folder);
    }
    return stage.check(made.size() == 1, QStringLiteral("a folder of results is made"))
               ? made.first()
               : QString();
}

void keepResults(Stage& stage, const QString& folder, const QString& sceneName)
{
    if (folder.isEmpty()) {
        return;
    }
    const QString kept = QDir(resultsFolder()).filePath(sceneName);
    QDir(kept).removeRecursively();
    stage.check(QDir().rename(folder, kept), QStringLiteral("the results are kept in ") + kept);
}

void checkResults(Stage& stage, const QString& folder, const QVector<ExpectedResult>& expected)
{
    if (folder.isEmpty()) { // there is a complaint already
        return;
    }
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
