#include "app/HelpSlides.h"
#include "app/MainPage.h"
#include "flow/NodesTabBar.h"
#include "support/TestMain.h"
#include <QMWidgets/App.h>
#include <QMWidgets/TranslationsManager.h>

#include <QDomDocument>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <QRegularExpression>
#include <QToolButton>

using QMWidgets::App;
using QMWidgets::TranslationsManager;

namespace
{

QStringList found(const QString& text, const QString& pattern)
{
    QStringList matches;
    const QRegularExpression regular(pattern, QRegularExpression::UseUnicodePropertiesOption);
    auto all = regular.globalMatch(text);
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
        if (found(source, pattern) != found(translation, pattern)) {
            return pattern;
        }
    }
    if ((source.startsWith(QLatin1Char(' ')) && !keepsApart(translation.front())) ||
        (source.endsWith(QLatin1Char(' ')) && !keepsApart(translation.back()))) {
        return QStringLiteral(" ");
    }
    // A mnemonic stays, and only there.
    if (found(source, "&\\w").size() != found(translation, "&\\w").size()) {
        return "&";
    }
    const bool asks = QRegularExpression(QStringLiteral("[:：]$")).match(translation).hasMatch();
    return source.endsWith(QLatin1Char(':')) == asks ? QString() : QStringLiteral(":");
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

    void onlyExactCodesAreTaken()
    {
        const struct {
            const char* stored;
            const char* code;
        } rows[] = {{"de", "de"}, {"zh_CN", "zh_CN"}, {"de_DE", "en"},
                    {"DE", "en"}, {"xx", "en"},       {"", "en"}};
        for (const auto& each : rows) {
            QCOMPARE(startWith(QLatin1String(each.stored))->language(), QString(each.code));
            QCOMPARE(App::app()->language(), QString(each.code));
            QCOMPARE(App::app()->settingsValue(QStringLiteral("Language"), QString()).toString(),
                     QString(each.code));
        }
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
                const QString file = kind + code + QStringLiteral(".ts");
                QTest::newRow(qPrintable(file)) << file;
            }
        }
        QTest::newRow("qt_hi.ts") << "qt_hi.ts";
    }

    void theTextsAreComplete()
    {
        QFETCH(QString, file);
        QFile source(QStringLiteral(TESSARIN_TRANSLATIONS_FOLDER "/") + file);
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

    void libraryProgramAndQtSpeakIt()
    {
        const auto speaks = [](const char* context, const char* text) {
            return QCoreApplication::translate(context, text) != QLatin1String(text);
        };
        for (const QString& code : TranslationsManager::translatedCodes()) {
            TranslationsManager::instance()->setLanguage(code);
            QVERIFY2(speaks("QMWidgets::AppMenu", "Quit"), qPrintable(code));
            QVERIFY2(speaks("AppSettingsDialog", "Output Format"), qPrintable(code));
            // Not every machine has Qt's files. Qt has none for Hindi, so that one is ours.
            if (code == QLatin1String("hi") ||
                QFile::exists(QStringLiteral(":/Translations/qt_%1.qm").arg(code))) {
                QVERIFY2(speaks("QFileDialog", "Recent Places"), qPrintable(code));
                QVERIFY2(speaks("QPlatformTheme", "Cancel"), qPrintable(code));
            }
        }
    }

    void eachLanguageHasItsSlides()
    {
        const QString folder = QStringLiteral(TESSARIN_SLIDES_FOLDER);
        const QPair<QString, QString> rows[] = {{"de", "de"}, {"ru", "ru"}, {"fr", "en"}};
        for (const auto& row : rows) {
            const QStringList slides = helpSlides(row.first, folder);
            QCOMPARE(slides.size(), 12);
            QVERIFY2(slides.first().endsWith(row.second + ".jpeg"), qPrintable(slides.first()));
            for (const QString& slide : slides) {
                QVERIFY2(QImage(slide).size() == QSize(1600, 1200), qPrintable(slide));
            }
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
        // For readers of the screen: the tab bar's own buttons.
        QStringList names;
        for (const QToolButton* scroll :
             page.findChild<NodesTabBar*>()->findChildren<QToolButton*>()) {
            names += scroll->accessibleName();
        }
        QCOMPARE(names, QStringList({QStringLiteral("Frühere Schritte"),
                                     QStringLiteral("Spätere Schritte")}));
        TranslationsManager::instance()->setLanguage(QStringLiteral("en"));
        QCoreApplication::processEvents();
        QCOMPARE(button->toolTip(), QStringLiteral("Add node"));
    }
};

TESSARIN_TEST(TestTranslations);
#include "tst_Translations.moc"
