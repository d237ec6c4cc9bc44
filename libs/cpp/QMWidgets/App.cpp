#include "App.h"

#include "BlenderWidget.h"
#include "BuildDate.h"
#include "DialogGate.h"
#include "EventNesting.h"
#include "HelpDialog.h"
#include "TranslationsManager.h"
#include "UpdateCheck.h"
#include "UpdateSettings.h"
#include "WindowsVersionName.h"
#include <QMWidgets/MakerSite.h>

#include <QEvent>
#include <QScreen>
#include <QSettings>
#include <QSysInfo>
#include <QThread>
#include <QTimer>

namespace QMWidgets
{

namespace
{

constexpr int kHelpDelay = 500;         // milliseconds
constexpr int kUpdateCheckDelay = 2000; // milliseconds after the start

void dropMessage(QtMsgType, const QMessageLogContext&, const QString&) {}

QString settingsKey(const QString& key)
{
    return QCoreApplication::applicationName() + QLatin1Char('/') + key;
}

QString toolkitNote()
{
    return App::tr("<H3>This Application Uses:</H3>") +
           QStringLiteral("Qt 5 Framework<BR><A HREF=\"%1\">%1</A><BR>")
               .arg(MakerSite::toolkitSite());
}

} // namespace

App::App(int& argc, char** argv, const QString& organization, const QString& application)
    : QApplication(argc, argv),
      m_helpTimer(new QTimer(this))
{
    setOrganizationName(organization);
    setApplicationName(application);
    // Before the home folder is made, which is itself a trace of a run.
    m_firstRun = hasNoFolders();
    m_usesText = toolkitNote();
    appHomeFolder(true);
    m_settings = new QSettings(organization, application, this);
    m_resourcesPath = QStringLiteral("Resources/");
    m_directDistribution = true;
    qInstallMessageHandler(dropMessage);
    m_helpTimer->setObjectName(QStringLiteral("HelpTimer"));
    m_helpTimer->setSingleShot(true);
    m_helpTimer->setInterval(kHelpDelay);
    connect(m_helpTimer, &QTimer::timeout, this, &App::showHelpWhenGateOpens);
    m_dialogGate = new DialogGate(this);
    m_updateCheck = new UpdateCheck(m_dialogGate, this);
    if (UpdateSettings::isCheckedAtStart()) {
        QTimer::singleShot(kUpdateCheckDelay, this, &App::nop_cuos);
    }
}

App::~App()
{
    // While it is closed, nobody else owns it.
    delete m_helpDialog;
}

App* App::app()
{
    return qobject_cast<App*>(QCoreApplication::instance());
}

QVariant App::settingsValue(const QString& key, const QVariant& defaultValue) const
{
    return m_settings->value(settingsKey(key), defaultValue);
}

void App::setSettingsValue(const QString& key, const QVariant& value)
{
    m_settings->setValue(settingsKey(key), value);
}

QString App::language()
{
    TranslationsManager::instance();
    return m_language;
}

void App::setLanguage(const QString& code)
{
    m_language = code;
    m_usesText = toolkitNote();
}

void App::setUpdateService(const UpdateService& service)
{
    m_updateCheck->setService(service);
}

QDate App::buildDate() const
{
    return parseBuildDate(QStringLiteral(__DATE__));
}

void App::setMainWidget(QWidget* widget)
{
    delete m_blender;
    m_mainWidget = widget;
    if (widget) {
        m_blender = new BlenderWidget(widget);
        m_blender->setObjectName(QStringLiteral("MainWidgetBlender"));
        m_blender->hide();
    }
}

QString App::systemName() const
{
#ifdef Q_OS_WIN
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    return windowsVersionName(int(QSysInfo::windowsVersion()));
    QT_WARNING_POP
#else
    return QSysInfo::prettyProductName();
#endif
}

bool App::isSmallScreen()
{
    const QScreen* screen = primaryScreen();
    return screen && isSmallDesktop(screen->virtualSize());
}

bool App::isSmallDesktop(const QSize& desktop)
{
    return desktop.width() - 1 < 479 || desktop.height() - 1 < 479;
}

double App::devicePixelRatio()
{
    const QScreen* screen = primaryScreen();
    return screen ? screen->devicePixelRatio() : 1.0;
}

bool App::notify(QObject* receiver, QEvent* event)
{
    const EventNesting nesting;
    switch (event->type()) {
    case QEvent::ApplicationActivate:
        emit applicationActivated();
        break;
    case QEvent::ApplicationDeactivate:
        emit applicationDeactivated();
        break;
    case QEvent::MouseButtonPress:
        emit mouseButtonPress();
        break;
    default:
        break;
    }
    const bool isTaken = QApplication::notify(receiver, event);
    // Events of worker threads come here, too, and some come before the gate is made.
    if (m_dialogGate && QThread::currentThread() == thread()) {
        m_dialogGate->eventEnded();
    }
    return isTaken;
}

void App::slotFocusChanged(QWidget*, QWidget*)
{
    slotSetBlendMainWidget(activeWindow() != m_mainWidget);
}

void App::slotSetBlendMainWidget(bool on)
{
    // The veil is the main window's child, so it is there only together with it.
    if (!m_blender) {
        return;
    }
    if (!on) {
        m_blender->hide();
        return;
    }
    m_blender->setFixedSize(m_mainWidget->size());
    m_blender->show();
    m_blender->raise();
}

void App::slotCheckUpdate()
{
    m_updateCheck->runForUser();
}

void App::nop_cuos()
{
    m_updateCheck->runQuietly();
}

} // namespace QMWidgets
