#include "support/Photos.h"
#include "support/TestMain.h"

#include <QDir>
#include <QLocale>
#include <QMWidgets/App.h>
#include <QMWidgets/BuildDate.h>
#include <QScopeGuard>

using QMWidgets::App;

namespace
{

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("unreadable");
}

} // namespace

class tst_App : public QObject
{
    Q_OBJECT

private slots:
    void readsTheCompilersDate()
    {
        const struct {
            const char* text;
            QDate date;
        } rows[] = {{"Oct 18 2014", QDate(2014, 10, 18)},
                    {"Jan  1 2024", QDate(2024, 1, 1)},
                    {"Dec 31 1999", QDate(1999, 12, 31)},
                    {"oct 18 2014", QDate()},
                    {"Feb 30 2014", QDate()},
                    {"", QDate()}};
        // The compiler's months are English ones wherever the user lives.
        const auto restore = qScopeGuard([before = QLocale()] { QLocale::setDefault(before); });
        QLocale::setDefault(QLocale(QLocale::German));
        for (const auto& row : rows) {
            QVERIFY2(QMWidgets::parseBuildDate(QLatin1String(row.text)) == row.date, row.text);
        }
        QVERIFY(App::app()->buildDate().isValid());
    }

    void veilsTheMainWindowWhileAnotherIsActive()
    {
        App* const app = App::app();
        {
            QWidget window;
            window.show();
            app->setMainWidget(&window);
            app->setMainWidget(&window); // takes the first veil away
            const auto veils = window.findChildren<QWidget*>(QStringLiteral("MainWidgetBlender"));
            QCOMPARE(veils.count(), 1);
            QWidget other;
            other.show();
            QApplication::setActiveWindow(&other);
            app->slotFocusChanged(nullptr, nullptr);
            QVERIFY(veils.first()->isVisible());
            QApplication::setActiveWindow(&window);
            app->slotFocusChanged(nullptr, nullptr);
            QVERIFY(veils.first()->isHidden());
        }
        QVERIFY(!app->mainWidget());
        app->slotSetBlendMainWidget(true);
        app->slotFocusChanged(nullptr, nullptr);
    }

    void anyFolderCountsAsAnEarlierRun()
    {
        const struct {
            QString (*folder)(bool create);
            const char* path; // in the home
        } rows[] = {{App::appHomeFolder, "/Tessarin/"},
                    {App::appDataFolder, "/data/Corvane/Tessarin"},
                    {App::appCacheFolder, "/cache/Corvane/Tessarin"},
                    {App::appDocumentsFolder, "/Documents/Corvane/Tessarin/"},
                    {App::defaultOutputFolder, "/Pictures/Corvane/Tessarin/"},
                    {App::appMusicFolder, "/Music/Corvane/Tessarin/"},
                    {App::appMoviesFolder, "/Videos/Corvane/Tessarin/"}};
        for (const auto& row : rows) {
            QCOMPARE(row.folder(false), QDir::homePath() + QLatin1String(row.path));
            QDir(row.folder(false)).removeRecursively();
        }
        for (const auto& row : rows) {
            QVERIFY2(App::hasNoFolders(), row.path);
            const QString path = row.folder(true);
            QVERIFY2(QFileInfo(path).isDir() && !App::hasNoFolders(), row.path);
            QDir(path).removeRecursively();
        }
    }

    void copiesAWholeFileOrNothing()
    {
        Photos files;
        const QByteArray content("\0a\r\nb\xff", 6);
        files.addFile(QStringLiteral("source"), content);
        files.addFile(QStringLiteral("old"), "old");
        const struct {
            const char* source;
            const char* folder;
            const char* name;
            bool succeeds;
            const char* target;
            QByteArray targetAfter;
        } rows[] = {{"source", "new/deep", "", true, "new/deep/source", content},
                    {"source", "new/deep", "other", true, "new/deep/other", content},
                    {"source", ".", "old", true, "old", "old"},
                    // An existing target is enough, whatever has become of the source.
                    {"gone", ".", "old", true, "old", "old"},
                    {"gone", "new/deep", "lost", false, "new/deep/lost", "unreadable"},
                    {"new", "new/deep", "lost", false, "new/deep/lost", "unreadable"},
                    // A file can't be written into, not even by the superuser.
                    {"source", "old", "name", false, "old", "old"}};
        for (const auto& row : rows) {
            const bool isCopied =
                App::copyFileToFolder(files.path(row.source), files.path(row.folder), row.name);
            QVERIFY2(isCopied == row.succeeds, row.target);
            QVERIFY2(contentOf(files.path(row.target)) == row.targetAfter, row.target);
        }
        const QDir folder(files.path(QStringLiteral("new/deep")));
        QCOMPARE(folder.entryList(QDir::Files | QDir::Hidden), QStringList({"other", "source"}));
    }
};

TESSARIN_TEST(tst_App);
#include "tst_App.moc"
