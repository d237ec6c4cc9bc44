#include "AllWindows.h"

#include "app/Startup.h"
#include "app/StyleSheet.h"
#include "support/TestMain.h"
#include <QMWidgets/TranslationsManager.h>

#include <QAbstractButton>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QTreeView>

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

QSize roomAskedBy(const QWidget* widget)
{
    const auto* const label = qobject_cast<const QLabel*>(widget);
    return label && label->wordWrap()
               ? QSize(label->minimumSizeHint().width(), label->heightForWidth(label->width()))
               : widget->sizeHint();
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
        const QSize asked = roomAskedBy(widget);
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

/// What stands more than once in a list.
QStringList repeated(QStringList texts)
{
    QStringList once = texts;
    once.removeDuplicates();
    for (const QString& text : once) {
        texts.removeOne(text);
    }
    return texts;
}

QStringList s_messages;

void collectWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg) {
        s_messages.append(text);
    }
}

} // namespace

class TestWindows : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanup() { TranslationsManager::instance()->setLanguage(QStringLiteral("en")); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void textsFitAndMnemonicsAreUnique_data()
    {
        QTest::addColumn<QString>("code");
        QTest::newRow("en") << "en";
        for (const QString& code : TranslationsManager::translatedCodes()) {
            QTest::newRow(qPrintable(code)) << code;
        }
    }

    void textsFitAndMnemonicsAreUnique()
    {
        QFETCH(QString, code);
        MainPage empty(nullptr); // stands before the language is known
        empty.show();
        TranslationsManager::instance()->setLanguage(code);
        const auto* const title = empty.findChild<QLabel*>(QStringLiteral("InitTitle"));
        QTRY_VERIFY(
            title->text().contains(QCoreApplication::translate("InitLabel", "Add an operation")));
        QTRY_COMPARE(cutTexts(&empty).join(QLatin1Char('\n')), QString());
        AllWindows windows;
        QStringList wrong;
        int count = 0;
        forEachView(windows, [&](QWidget* window) {
            wrong += cutTexts(window);
            const QStringList mnemonics = mnemonicsOf(window);
            count += mnemonics.size();
            wrong += repeated(mnemonics);
        });
        for (const QWidget* const window : windows.list()) {
            for (const QMenu* const menu : window->findChildren<QMenu*>()) {
                wrong += repeated(mnemonicsOf(menu));
            }
        }
        wrong.removeDuplicates();
        QVERIFY2(wrong.isEmpty(), qPrintable(wrong.join(QLatin1Char('\n'))));
        QVERIFY(count > 10);
    }

    void theSheetDrawsAllWindowsWithoutAWarning()
    {
        s_messages.clear();
        const QtMessageHandler handler = qInstallMessageHandler(collectWarning);
        {
            qApp->setStyleSheet(QString());
            qApp->setStyleSheet(applicationStyleSheet());
            AllWindows windows;
            for (QWidget* const window : windows.list()) {
                window->ensurePolished();
                window->grab();
            }
        }
        qInstallMessageHandler(handler);
        QCOMPARE(s_messages.join(QLatin1Char('\n')), QString());
    }

    void aFileDialogLooksTheSameWhateverOpensIt()
    {
        QMWidgets::DropWidget dropWindow(nullptr);
        QList<QImage> captions;
        for (const bool isOpenedByDropWindow : {false, true}) {
            QFileDialog dialog(isOpenedByDropWindow ? &dropWindow : nullptr);
            dialog.setOption(QFileDialog::DontUseNativeDialog);
            dialog.setViewMode(QFileDialog::Detail);
            dialog.resize(2000, 400); // room beyond the last column
            dialog.show();
            captions += dialog.findChild<QLabel*>(QStringLiteral("lookInLabel"))->grab().toImage();
            auto* const header = dialog.findChild<QTreeView*>()->header();
            QVERIFY(header->length() < header->width());
            const QImage picture = header->grab().toImage();
            QVERIFY(qGray(picture.pixel(picture.width() - 2, picture.height() / 2)) < 80);
        }
        QCOMPARE(captions.first(), captions.last());
    }

    void theSheetDrawsAllFlatButtons()
    {
        const QString sheet = applicationStyleSheet();
        const AllWindows windows;
        for (const QWidget* const widget : QApplication::allWidgets()) {
            const auto* const button = qobject_cast<const QPushButton*>(widget);
            // One that the sheet doesn't draw is not seen at all.
            if (button && button->isFlat() && button->icon().isNull()) {
                const QString name = button->objectName();
                QVERIFY2(!name.isEmpty() && sheet.contains(QLatin1Char('#') + name),
                         qPrintable(name));
            }
        }
    }
};

TESSARIN_TEST(TestWindows);
#include "tst_Windows.moc"
