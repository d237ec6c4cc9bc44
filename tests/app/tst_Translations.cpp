#include "app/MainPage.h"
#include "support/TestMain.h"
#include <QMWidgets/App.h>
#include <QMWidgets/TranslationsManager.h>

#include <QDomDocument>
#include <QFile>
#include <QLocale>
#include <QPushButton>
#include <QRegularExpression>

using QMWidgets::App;
using QMWidgets::TranslationsManager;

namespace
{

const QString kFolder = QStringLiteral(TESSARIN_TRANSLATIONS_FOLDER);

const QRegularExpression::PatternOptions kUnicode = QRegularExpression::UseUnicodePropertiesOption;

QStringList found(const QString& text, const QString& pattern)
{
    QStringList matches;
    auto all = QRegularExpression(pattern, kUnicode).globalMatch(text);
    while (all.hasNext()) {
        matches += all.next().captured();
    }
    matches.sort();
    return matches;
}

/// Whether a piece of text keeps apart from a name that stands next to it.
bool keepsApart(QChar edge)
{
    return edge.isSpace() || edge.isPunct();
}

/// What has got lost between a text and its translation, or nothing.
QString lostIn(const QString& source, const QString& translation)
{
    // Placeholders, tags and line ends may change places but not number.
    for (const char* pattern : {"%\\d", "</?[A-Za-z][^>]*>", "\n", "\""}) {
        if (found(source, QLatin1String(pattern)) != found(translation, QLatin1String(pattern))) {
            return QLatin1String(pattern);
        }
    }
    if ((source.startsWith(QLatin1Char(' ')) && !keepsApart(translation.front())) ||
        (source.endsWith(QLatin1Char(' ')) && !keepsApart(translation.back()))) {
        return QStringLiteral(" ");
    }
    // A mnemonic stays, and only there.
    if (found(source, QStringLiteral("&\\w")).size() !=
        found(translation, QStringLiteral("&\\w")).size()) {
        return QStringLiteral("&");
    }
    const bool asks = QRegularExpression(QStringLiteral("[:：]$")).match(translation).hasMatch();
    return source.endsWith(QLatin1Char(':')) == asks ? QString() : QStringLiteral(":");
}

void addCodes()
{
    QTest::addColumn<QString>("code");
    for (const QString& code : TranslationsManager::translatedCodes()) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

/// The manager as a program finds it that starts with `stored` in its settings.
TranslationsManager* startWith(const QString& stored)
{
    delete TranslationsManager::instance();
    App::app()->setSettingsValue(QStringLiteral("Language"), stored);
    return TranslationsManager::instance();
}

} // namespace

class TestTranslations : public QObject
{
    Q_OBJECT

private slots:
    void cleanup() { TranslationsManager::instance()->setLanguage(QStringLiteral("en")); }

    void onlyExactCodesAreTaken_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<QString>("code");
        QTest::newRow("a language") << "de"
                                    << "de";
        QTest::newRow("with its country") << "zh_CN"
                                          << "zh_CN";
        QTest::newRow("a locale name") << "de_DE"
                                       << "en";
        QTest::newRow("other case") << "DE"
                                    << "en";
        QTest::newRow("unknown") << "xx"
                                 << "en";
        QTest::newRow("empty") << ""
                               << "en";
    }

    void onlyExactCodesAreTaken()
    {
        QFETCH(QString, stored);
        QFETCH(QString, code);
        QCOMPARE(startWith(stored)->language(), code);
        QCOMPARE(App::app()->language(), code);
        QCOMPARE(App::app()->settingsValue(QStringLiteral("Language"), QString()).toString(), code);
    }

    void arabicTurnsTheLayout()
    {
        auto* manager = TranslationsManager::instance();
        manager->setLanguage(QStringLiteral("ar"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        manager->reload();
        QCOMPARE(manager->language(), QStringLiteral("ar"));
        manager->setLanguage(QStringLiteral("de"));
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);
    }

    void theTextsAreComplete_data()
    {
        QTest::addColumn<QString>("file");
        for (const QString& code : TranslationsManager::translatedCodes()) {
            for (const char* kind : {"libs_", "Tessarin_"}) {
                const QString file = QLatin1String(kind) + code;
                QTest::newRow(qPrintable(file)) << file;
            }
        }
    }

    void theTextsAreComplete()
    {
        QFETCH(QString, file);
        QFile source(kFolder + QLatin1Char('/') + file + QStringLiteral(".ts"));
        QVERIFY(source.open(QIODevice::ReadOnly));
        QDomDocument document;
        QVERIFY(document.setContent(&source));
        const QDomNodeList messages = document.elementsByTagName(QStringLiteral("message"));
        QVERIFY(!messages.isEmpty());
        for (int i = 0; i < messages.size(); ++i) {
            const QString text = messages.at(i).firstChildElement(QStringLiteral("source")).text();
            const QDomElement translation =
                messages.at(i).firstChildElement(QStringLiteral("translation"));
            QVERIFY2(!translation.hasAttribute(QStringLiteral("type")), qPrintable(text));
            QVERIFY2(!translation.text().trimmed().isEmpty(), qPrintable(text));
            const QString lost = lostIn(text, translation.text());
            QVERIFY2(lost.isEmpty(), qPrintable(text + QStringLiteral(" lost ") + lost));
        }
    }

    void libraryProgramAndToolkitSpeakIt_data() { addCodes(); }

    void libraryProgramAndToolkitSpeakIt()
    {
        QFETCH(QString, code);
        TranslationsManager::instance()->setLanguage(code);
        const auto speaks = [](const char* context, const char* text) {
            return QCoreApplication::translate(context, text) != QLatin1String(text);
        };
        QVERIFY(speaks("QMWidgets::AppMenu", "Quit"));
        QVERIFY(speaks("AppSettingsDialog", "Output Format"));
        // The toolkit has not learnt Hindi, and its files are not on every machine.
        if (QFile::exists(QStringLiteral(":/Translations/qt_%1.qm").arg(code))) {
            QVERIFY(speaks("QFileDialog", "Recent Places"));
        }
    }

    void aStandingWindowFollows()
    {
        MainPage page(nullptr);
        auto* button = page.findChild<QPushButton*>(QStringLiteral("PushButtonAdd"));
        TranslationsManager::instance()->setLanguage(QStringLiteral("de"));
        QCoreApplication::processEvents();
        QCOMPARE(button->toolTip(), QCoreApplication::translate("FlowPanel", "Add node"));
        QVERIFY(button->toolTip() != QLatin1String("Add node"));
        TranslationsManager::instance()->setLanguage(QStringLiteral("en"));
        QCoreApplication::processEvents();
        QCOMPARE(button->toolTip(), QStringLiteral("Add node"));
    }
};

TESSARIN_TEST(TestTranslations);
#include "tst_Translations.moc"
