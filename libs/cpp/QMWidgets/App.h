#pragma once

#include <QApplication>
#include <QDate>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QWidget>

class QSettings;
class QTimer;

namespace QMWidgets
{

class BlenderWidget;
class DialogGate;
class HelpDialog;
class UpdateCheck;
struct UpdateService;

/// The application object: settings, folders, web addresses and the veil over the main window.
/// It knows nothing of photos. The constructor drops all messages of the toolkit from then on; a
/// developer can log them with installProtocolHandler().
///
/// Thread: the interface thread.
class App : public QApplication
{
    Q_OBJECT

public:
    /// Sets the identity, looks whether this is the first run and makes the application's home
    /// folder. `argc` has to outlive the object.
    App(int& argc, char** argv, const QString& organization, const QString& application);
    ~App() override;

    /// The running application, or null if the application object is of another class.
    static App* app();

    /// Settings, kept under organization and application name in a group named like the
    /// application. A value is written through when it changes.
    QVariant settingsValue(const QString& key, const QVariant& defaultValue) const;
    void setSettingsValue(const QString& key, const QVariant& value);

    /// Folders. With `create` a missing folder is made; whether that worked is not told.
    /// The home folder and those under the user's documents, pictures, music and movies end with
    /// a slash; the data and the cache folder do not.
    static QString appHomeFolder(bool create);
    static QString appDataFolder(bool create);
    static QString appCacheFolder(bool create);
    static QString appDocumentsFolder(bool create);
    static QString defaultOutputFolder(bool create);
    static QString appMusicFolder(bool create);
    static QString appMoviesFolder(bool create);
    /// True if none of the folders above exists, that is, no earlier run has left a trace.
    static bool hasNoFolders();

    /// Copies a file or a resource into `folder`, which is made if it is missing, under `newName`,
    /// or under its own name if that is empty. A file that exists counts as done and stays as it
    /// is. Errors: false if the source can't be read or the target can't be written; no part of a
    /// file is left behind.
    static bool copyFileToFolder(const QString& source, const QString& folder,
                                 const QString& newName);

    /// Language code of the interface, such as "en". The first call loads the language's texts.
    QString language();
    /// Told by the TranslationsManager when it has swapped the texts.
    void setLanguage(const QString& code);
    /// True if hasNoFolders() was true when the application started.
    bool firstRun() const { return m_firstRun; }
    /// True for a build that a store distributes; this program is given out directly.
    bool isStoreBuild() const { return !m_directDistribution; }
    /// Whom to ask for updates. Until this is called nobody is asked, and no request goes out.
    void setUpdateService(const UpdateService& service);
    /// The day this library was compiled.
    QDate buildDate() const;
    /// Folder of the files that are shipped beside the program, relative to the working directory,
    /// with a slash at its end.
    QString resourcesPath() const { return m_resourcesPath; }
    /// The pictures of the help, in the order of the show. They are taken when the help is opened
    /// for the first time.
    void setHelpImages(const QStringList& paths) { m_helpImages = paths; }
    /// Opens the help after half a second, or once DialogGate lets it through, unless the user has
    /// turned that off.
    void showHelpIfDue();
    /// Some seconds from now comes an occasion for a reminder, of one of the types (ReminderType)
    /// whose bits are set. Every `period`th occasion shows it, counted over all runs; a period
    /// below 1 shows none.
    void scheduleReminder(int period, int types);
    /// The application's page on the maker's site, opened by slotGoToPromotedApp().
    void setPromotedAppUrl(const QString& url) { m_productPage = url; }
    /// Forms the social and support addresses from the application's name.
    void setupWebLinks();
    QString facebookUrl() const { return m_facebookUrl; }
    QString twitterUrl() const { return m_twitterUrl; }
    QString vkontakteUrl() const { return m_vkontakteUrl; }
    /// Rich text that names the toolkit, for the about box.
    QString usesText() const { return m_usesText; }

    /// Sets the main window, which stays the caller's, and gives it a hidden veil. A veil given to
    /// an earlier main window goes. With null there is no main window.
    void setMainWidget(QWidget* widget);
    QWidget* mainWidget() const { return m_mainWidget; }

    /// Name and version of the operating system, to be read by people.
    QString systemName() const;
    /// True if the desktop is so small that rows of buttons have to become columns.
    static bool isSmallScreen();
    /// Units: desktop size in logical pixels.
    static bool isSmallDesktop(const QSize& desktop);
    /// Device pixels for each logical pixel of the primary screen; may change while running, so
    /// don't keep it. 1 without a screen. Needs no App, any QGuiApplication will do.
    static double devicePixelRatio();

    bool notify(QObject* receiver, QEvent* event) override;

signals:
    /// A mouse button went down anywhere in the application; comes once for each object that the
    /// press is handed to.
    void mouseButtonPress();
    void applicationActivated();
    void applicationDeactivated();
    /// The dock's icon was clicked, on desktops that tell.
    void dockClicked();

public slots:
    /// An occasion for a reminder. One that is due waits for DialogGate, and is counted only then.
    void slotCallRateReminderInternal();
    /// Set the type of the reminder and start the time to its occasion.
    void slotCallRateReminder();
    void slotCallTellReminder();
    void slotCallJoinReminder();
    /// Veils the main window unless it is the active one.
    void slotFocusChanged(QWidget* old, QWidget* now);
    /// Shows a new style sheet editor, which is not modal and goes when it is closed. It does not
    /// keep the program running.
    void slotShowCssEditor();
    /// Opens a mail to the maker's support that names application, system and language.
    void slotContactUs();
    /// Opens a ready-made mail with no addressee that recommends the application.
    void slotTellFriend();
    void slotShowMoreApps();
    void slotRateApp();
    void slotSupportPage();
    /// Runs the help as a modal dialog over the active window. It is kept, and goes on from the
    /// slide shown last.
    void slotHelp();
    void slotGoToPromotedApp();
    /// Run the dialogs that share the program, lead to the maker's pages and tell the version.
    void slotShareApp();
    void slotJoin();
    void slotAbout();
    /// Shows or hides the veil over the main window; without a main window nothing happens.
    void slotSetBlendMainWidget(bool on);
    /// Asks whether there is a newer release, with a busy cursor over the main window, and shows
    /// the outcome, also if it can't be found out. Returns at once.
    virtual void slotCheckUpdate();
    /// The check at the start: asks now and then, and shows the user only a newer release. Returns
    /// at once.
    void nop_cuos();

private:
    void showHelpWhenGateOpens();
    void startReminderDelay();

    QSettings* m_settings = nullptr;
    QString m_language = QStringLiteral("en");
    int m_reminderPeriod = 10;
    int m_reminderDelay = 4000; // milliseconds
    QPointer<HelpDialog> m_helpDialog;
    QStringList m_helpImages;
    QString m_productPage;
    int m_reminderType = 0;
    QString m_facebookUrl;
    QString m_twitterUrl;
    QString m_vkontakteUrl;
    QPointer<QWidget> m_mainWidget;
    QPointer<BlenderWidget> m_blender;
    QString m_supportUrl;
    QString m_resourcesPath;
    QString m_usesText;
    bool m_firstRun = false;
    bool m_directDistribution = false;
    DialogGate* m_dialogGate = nullptr;
    QTimer* m_helpTimer;
    UpdateCheck* m_updateCheck = nullptr;
};

} // namespace QMWidgets
