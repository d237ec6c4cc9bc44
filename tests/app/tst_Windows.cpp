#include "AllWindows.h"

#include "app/Startup.h"
#include "flow/BaseNode.h"
#include "support/TestMain.h"
#include <QMWidgets/TranslationsManager.h>

#include <algorithm>
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QStackedWidget>

using QMWidgets::TranslationsManager;

namespace
{

QString textOf(const QWidget* widget)
{
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        return button->text();
    }
    const auto* label = qobject_cast<const QLabel*>(widget);
    return label ? label->text() : QString();
}

/// The texts of a window, as it is now, that have less room than they ask for.
QStringList cutTexts(const QWidget* window)
{
    QStringList cut;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        const QString text = textOf(widget);
        if (text.isEmpty() || !widget->isVisible() || widget->window() != window) {
            continue;
        }
        const QSize asked = widget->sizeHint();
        // What a button is drawn with and what it asks for may differ by its border.
        if (asked.width() > widget->width() + 1 || asked.height() > widget->height() + 1) {
            cut += QStringLiteral("%1 asks for %2x%3, has %4x%5")
                       .arg(text)
                       .arg(asked.width())
                       .arg(asked.height())
                       .arg(widget->width())
                       .arg(widget->height());
        }
    }
    return cut;
}

void addMnemonic(const QString& text, QStringList& mnemonics)
{
    const QKeySequence sequence = QKeySequence::mnemonic(text);
    if (!sequence.isEmpty()) {
        mnemonics += sequence.toString();
    }
}

/// Each mnemonic as often as it stands, so that a second one shows.
QStringList mnemonicsOf(const QWidget* window)
{
    QStringList mnemonics;
    for (const QWidget* widget : window->findChildren<QWidget*>()) {
        if (widget->isVisibleTo(window) && widget->window() == window) {
            addMnemonic(textOf(widget), mnemonics);
        }
    }
    return mnemonics;
}

QStringList mnemonicsOf(const QMenu* menu)
{
    QStringList mnemonics;
    for (const QAction* action : menu->actions()) {
        addMnemonic(action->text(), mnemonics);
    }
    return mnemonics;
}

/// What a screen reader has to say of a widget that holds the keyboard.
bool hasName(const QWidget* widget)
{
    const auto* group = qobject_cast<const QGroupBox*>(widget);
    const QList<QLabel*> labels = widget->window()->findChildren<QLabel*>();
    const bool isBuddy = std::any_of(labels.begin(), labels.end(), [widget](const QLabel* label) {
        return label->buddy() == widget;
    });
    return isBuddy || !textOf(widget).isEmpty() || !widget->accessibleName().isEmpty() ||
           (group && !group->title().isEmpty());
}

/// The toolkit's own parts of a widget speak through it.
bool isPart(const QWidget* widget)
{
    return widget->objectName().startsWith(QLatin1String("qt_")) || widget->focusProxy() ||
           widget->inherits("QToolButton") || widget->inherits("QScrollBar") ||
           widget->inherits("QMenu") || widget->inherits("QComboBoxListView");
}

void addLanguages()
{
    QTest::addColumn<QString>("code");
    QTest::newRow("en") << "en";
    for (const QString& code : TranslationsManager::translatedCodes()) {
        QTest::newRow(qPrintable(code)) << code;
    }
}

/// Windows do not leave each other the keyboard, so one is shown at a time.
class Shown
{
public:
    explicit Shown(QWidget* window)
        : m_window(window)
    {
        m_window->show();
        QCoreApplication::processEvents();
    }
    ~Shown() { m_window->hide(); }
    Shown(const Shown&) = delete;
    Shown& operator=(const Shown&) = delete;

private:
    QWidget* m_window;
};

} // namespace

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanup() { TranslationsManager::instance()->setLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void nothingIsCutOff_data() { addLanguages(); }

    void nothingIsCutOff()
    {
        QFETCH(QString, code);
        TranslationsManager::instance()->setLanguage(code);
        AllWindows windows;
        for (QWidget* window : windows.list()) {
            const Shown shown(window);
            const QStringList cut = cutTexts(window);
            QVERIFY2(cut.isEmpty(), qPrintable(cut.join(QLatin1Char('\n'))));
        }
    }

    void noPageOfANodeIsCutOff_data() { addLanguages(); }

    void noPageOfANodeIsCutOff()
    {
        QFETCH(QString, code);
        TranslationsManager::instance()->setLanguage(code);
        AllWindows windows;
        const Shown shown(&windows.page);
        for (BaseNode* node : windows.page.findChildren<BaseNode*>()) {
            qobject_cast<QStackedWidget*>(node->parentWidget())->setCurrentWidget(node);
            QCoreApplication::processEvents();
            const QStringList cut = cutTexts(&windows.page);
            QVERIFY2(cut.isEmpty(),
                     qPrintable(node->name() + QLatin1Char('\n') + cut.join(QLatin1Char('\n'))));
        }
    }

    void mnemonicsAreUnique_data() { addLanguages(); }

    void mnemonicsAreUnique()
    {
        QFETCH(QString, code);
        TranslationsManager::instance()->setLanguage(code);
        AllWindows windows;
        int count = 0;
        for (QWidget* window : windows.list()) {
            QStringList mnemonics = mnemonicsOf(window);
            count += mnemonics.size();
            QVERIFY2(mnemonics.removeDuplicates() == 0,
                     qPrintable(window->windowTitle() + mnemonics.join(QLatin1Char(' '))));
            for (const QMenu* menu : window->findChildren<QMenu*>()) {
                QStringList entries = mnemonicsOf(menu);
                count += entries.size();
                QVERIFY2(entries.removeDuplicates() == 0,
                         qPrintable(entries.join(QLatin1Char(' '))));
            }
        }
        QVERIFY(count > 10);
    }

    void whatHasNoTextHasAName()
    {
        AllWindows windows;
        QStringList nameless;
        for (QWidget* window : windows.list()) {
            for (const QWidget* widget : window->findChildren<QWidget*>()) {
                const bool takesKeys = widget->focusPolicy() != Qt::NoFocus;
                const bool isButtonLeftOut = widget->isHidden() && widget->inherits("QPushButton");
                if (takesKeys && !isPart(widget) && !isButtonLeftOut && !hasName(widget)) {
                    nameless += QLatin1String(widget->metaObject()->className()) +
                                QLatin1Char(' ') + widget->objectName() + QLatin1String(" in ") +
                                QLatin1String(window->metaObject()->className());
                }
            }
        }
        QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1Char('\n'))));
    }
};

TESSARIN_TEST(TestWindows);
#include "tst_Windows.moc"
