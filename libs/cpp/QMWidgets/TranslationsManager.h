#pragma once

#include <QObject>
#include <QString>
#include <QTranslator>

namespace QMWidgets
{

/// The language of the interface: loads the texts of the toolkit, of the libraries and of the
/// program from the resources, and swaps them on request. Widgets that stand follow through
/// QEvent::LanguageChange (see followLanguage()).
///
/// Thread: the interface thread.
class TranslationsManager : public QObject
{
    Q_OBJECT

public:
    /// The single object, made at the first call with the language of the settings. It belongs to
    /// the application object.
    static TranslationsManager* instance();

    /// True for a code that texts exist for: exactly "de", "zh_CN" and so on, or "en", the language
    /// of the sources. A full locale name such as "de_DE" is none.
    static bool isSupported(const QString& code);
    /// The codes that texts have been translated to; without "en".
    static QStringList translatedCodes();

    /// Swaps the texts and the layout's direction, and keeps the code in the settings.
    /// Errors: where a file is missing, the texts stay English.
    void setLanguage(const QString& code);
    QString language() const { return m_language; }

    /// The folders in the resource tree that hold the texts of each kind.
    void setAppPrefix(const QString& prefix) { m_appPrefix = prefix; }
    void setLibsPrefix(const QString& prefix) { m_libsPrefix = prefix; }
    void setQtPrefix(const QString& prefix) { m_qtPrefix = prefix; }
    /// Loads the language in force anew, for use after the prefixes have changed.
    void reload();

private:
    explicit TranslationsManager(QObject* parent);
    static void install(QTranslator& translator, const QString& file);

    QTranslator m_qtTranslator{this};
    QTranslator m_libsTranslator{this};
    QTranslator m_appTranslator{this};
    QString m_language;
    QString m_appPrefix;
    QString m_libsPrefix;
    QString m_qtPrefix;
};

} // namespace QMWidgets
