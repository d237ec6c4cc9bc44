#include "TranslationsManager.h"

#include "App.h"

#include <QGuiApplication>
#include <QLocale>
#include <QPointer>

namespace QMWidgets
{

namespace
{

const QString kSourceLanguage = QStringLiteral("en");
const QString kLanguageKey = QStringLiteral("Language");

} // namespace

TranslationsManager* TranslationsManager::instance()
{
    static QPointer<TranslationsManager> manager;
    if (!manager) {
        manager = new TranslationsManager(QCoreApplication::instance());
    }
    return manager;
}

QStringList TranslationsManager::translatedCodes()
{
    return {QStringLiteral("de"),   QStringLiteral("ru"), QStringLiteral("es"),
            QStringLiteral("fr"),   QStringLiteral("hi"), QStringLiteral("it"),
            QStringLiteral("pt"),   QStringLiteral("ko"), QStringLiteral("ar"),
            QStringLiteral("zh_CN")};
}

bool TranslationsManager::isSupported(const QString& code)
{
    return code == kSourceLanguage || translatedCodes().contains(code);
}

TranslationsManager::TranslationsManager(QObject* parent)
    : QObject(parent)
{
    const App* app = App::app();
    const QString system = QLocale::system().name();
    const QString code = app ? app->settingsValue(kLanguageKey, system).toString() : system;
    setLanguage(isSupported(code) ? code : kSourceLanguage);
}

void TranslationsManager::install(QTranslator& translator, const QString& file)
{
    if (translator.load(file)) {
        QCoreApplication::installTranslator(&translator);
    }
}

void TranslationsManager::setLanguage(const QString& code)
{
    QCoreApplication::removeTranslator(&m_qtTranslator);
    QCoreApplication::removeTranslator(&m_libsTranslator);
    QCoreApplication::removeTranslator(&m_appTranslator);
    if (code != kSourceLanguage) {
        install(m_qtTranslator,
                QLatin1String(":/") + m_qtPrefix + QLatin1String("Translations/qt_") + code);
        install(m_libsTranslator,
                QLatin1String(":/") + m_libsPrefix + QLatin1String("/Translations/libs_") + code);
        install(m_appTranslator, QLatin1String(":/") + m_appPrefix +
                                     QLatin1String("Translations/") +
                                     QCoreApplication::applicationName() + QLatin1Char('_') + code);
    }
    m_language = code;
    QGuiApplication::setLayoutDirection(code == QLatin1String("ar") ? Qt::RightToLeft
                                                                    : Qt::LeftToRight);
    if (App* app = App::app()) {
        app->setSettingsValue(kLanguageKey, code);
        app->setLanguage(code);
    }
}

void TranslationsManager::reload()
{
    setLanguage(QString(m_language));
}

} // namespace QMWidgets
