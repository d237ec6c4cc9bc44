#include "support/TestHome.h"
#include "support/TestMain.h"

#include <QDir>
#include <QMWidgets/App.h>

using QMWidgets::App;

namespace
{

/// Another home for the length of a test.
class OtherHome
{
public:
    OtherHome()
    {
        for (int i = 0; i < kCount; ++i) {
            m_before[i] = qgetenv(kVariables[i]);
        }
        m_home = std::make_unique<TestHome>();
    }
    ~OtherHome()
    {
        for (int i = 0; i < kCount; ++i) {
            qputenv(kVariables[i], m_before[i]);
        }
    }
    QString path() const { return m_home->path(); }

private:
    static constexpr int kCount = 5;
    static constexpr const char* kVariables[kCount] = {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME",
                                                       "XDG_CACHE_HOME", "XDG_RUNTIME_DIR"};
    QByteArray m_before[kCount];
    std::unique_ptr<TestHome> m_home;
};

void write(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(content);
}

QByteArray read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("unreadable");
}

} // namespace

using Folder = QString (*)(bool);
Q_DECLARE_METATYPE(Folder)

class tst_AppFolders : public QObject
{
    Q_OBJECT

private slots:
    void eachFolderCountsAsAnEarlierRun_data()
    {
        QTest::addColumn<Folder>("folder");
        QTest::newRow("home") << Folder(App::appHomeFolder);
        QTest::newRow("data") << Folder(App::appDataFolder);
        QTest::newRow("cache") << Folder(App::appCacheFolder);
        QTest::newRow("documents") << Folder(App::appDocumentsFolder);
        QTest::newRow("pictures") << Folder(App::defaultOutputFolder);
        QTest::newRow("music") << Folder(App::appMusicFolder);
        QTest::newRow("movies") << Folder(App::appMoviesFolder);
    }

    void eachFolderCountsAsAnEarlierRun()
    {
        QFETCH(Folder, folder);
        const OtherHome home;
        QVERIFY(App::hasNoFolders());
        const QString path = folder(false);
        QVERIFY2(path.startsWith(home.path()), qPrintable(path));
        QVERIFY(!QFileInfo::exists(path));
        QCOMPARE(folder(true), path);
        QVERIFY(QFileInfo(path).isDir());
        QVERIFY(!App::hasNoFolders());
    }

    void foldersBearOrganizationAndApplication()
    {
        const OtherHome home;
        QCOMPARE(App::appHomeFolder(false), home.path() + QStringLiteral("/Tessarin/"));
        QCOMPARE(App::defaultOutputFolder(false),
                 home.path() + QStringLiteral("/Pictures/Corvane/Tessarin/"));
        QCOMPARE(App::appDataFolder(false), home.path() + QStringLiteral("/data/Corvane/Tessarin"));
    }

    void copiesAFile()
    {
        const QTemporaryDir dir;
        const QString source = dir.filePath(QStringLiteral("source.bin"));
        const QByteArray content("\0a\r\nb\xff", 6);
        write(source, content);
        const QString folder = dir.filePath(QStringLiteral("new/deep"));
        QVERIFY(App::copyFileToFolder(source, folder, QString()));
        QCOMPARE(read(folder + QStringLiteral("/source.bin")), content);
        QVERIFY(App::copyFileToFolder(source, folder, QStringLiteral("other.bin")));
        QCOMPARE(read(folder + QStringLiteral("/other.bin")), content);
        QCOMPARE(QDir(folder).entryList(QDir::Files | QDir::Hidden).count(), 2);
    }

    void leavesAnExistingTarget()
    {
        const QTemporaryDir dir;
        const QString source = dir.filePath(QStringLiteral("new"));
        const QString target = dir.filePath(QStringLiteral("old"));
        write(source, "new");
        write(target, "old");
        QVERIFY(App::copyFileToFolder(source, dir.path(), QStringLiteral("old")));
        QCOMPARE(read(target), QByteArray("old"));
        // An existing target is enough, whatever has become of the source.
        QVERIFY(App::copyFileToFolder(dir.filePath(QStringLiteral("gone")), dir.path(),
                                      QStringLiteral("old")));
    }

    void leavesNothingAfterAFailure()
    {
        const QTemporaryDir dir;
        const QString folder = dir.filePath(QStringLiteral("folder"));
        QVERIFY(!App::copyFileToFolder(dir.filePath(QStringLiteral("gone")), folder, QString()));
        QVERIFY(!App::copyFileToFolder(dir.path(), folder, QStringLiteral("name")));
        QVERIFY(QDir(folder).isEmpty());

        const QString file = dir.filePath(QStringLiteral("file"));
        write(file, "content");
        // A file in the place of the folder can't be written into, not even by the superuser.
        QVERIFY(!App::copyFileToFolder(file, file, QStringLiteral("name")));
        QCOMPARE(read(file), QByteArray("content"));
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::Hidden).count(), 1);
    }
};

TESSARIN_TEST(tst_AppFolders);
#include "tst_AppFolders.moc"
