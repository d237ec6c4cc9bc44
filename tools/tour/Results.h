#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class Stage;

/// The folder that holds a folder for each batch.
QString resultsFolder();

QStringList batchFolders();

/// The folder that a batch has made since the folders were listed; empty, with a complaint, unless
/// it is exactly one.
QString folderMadeSince(Stage& stage, const QStringList& before);

/// Names the folder of a batch after its scene, in place of one that an earlier tour named so.
/// Batches of the same second share a folder: one that is renamed is not in the way of the next.
void keepResults(Stage& stage, const QString& folder, const QString& sceneName);

/// What one expects of a batch's results.
struct ExpectedResult {
    QString fileName;
    QSize size;
};

/// Complains about each result that is missing, unreadable, of another size or too many.
void checkResults(Stage& stage, const QString& folder, const QVector<ExpectedResult>& expected);
