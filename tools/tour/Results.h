#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <QVector>

class Stage;

/// The folder that holds a folder for each batch.
QString resultsFolder();

/// Folders of the batches, the newest last.
QStringList batchFolders();

/// What one expects of a batch's results.
struct ExpectedResult {
    QString fileName;
    QSize size;
};

/// Complains about each result that is missing, unreadable, of another size or too many.
void checkResults(Stage& stage, const QString& folder, const QVector<ExpectedResult>& expected);
