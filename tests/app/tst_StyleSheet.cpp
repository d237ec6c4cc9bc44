#include "AllWindows.h"
#include "app/Startup.h"
#include "app/StyleSheet.h"
#include "SheetRules.h"
#include "support/TestMain.h"

#include <cmath>
#include <QApplication>
#include <QDir>
#include <QPushButton>
#include <QRegularExpression>

namespace
{

const QColor kDesk(71, 71, 71);

QStringList s_messages;

void collectWarning(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg) {
        s_messages.append(text);
    }
}

struct OtherPicture {
    const char* pattern;
    QSize size;
    bool hasTwin;
};

/// The pictures that the sheet doesn't size.
const OtherPicture kOtherPictures[] = {
    // Laid out pixel for pixel, so the toolkit is to find a twin for dense screens.
    {"Icon_???.png", {64, 64}, true},
    {"panelbackground.png", {8, 8}, true},
    {"pix/corvanelogo.png", {72, 24}, true},
    {"message_*.png", {48, 48}, true},
    {"update_available.png", {128, 128}, true},
    {"update_not_available.png", {128, 128}, true},
    // Scaled by what shows them.
    {"DisabledNode.png", {720, 720}, false},
    {"droparea.png", {720, 720}, false},
    {"initlabel_en.png", {1470, 350}, false},
    {"corvane.png", {1200, 600}, false},
    {"arrow.gif", {200, 200}, false},
    {"loading_image.gif", {192, 192}, false},
    // Icons of buttons and menus.
    {"openfiles.png", {48, 48}, false},
    {"appicon.png", {48, 48}, false},
    {"moreappsicon.png", {48, 48}, false},
    {"feedback.png", {48, 48}, false},
    {"webpage.png", {48, 48}, false},
    {"star.png", {48, 48}, false},
    {"new.png", {48, 48}, false},
    {"save.png", {48, 48}, false},
    {"delete.png", {48, 48}, false},
    {"GotoIcon.png", {48, 48}, false},
    // The maker's other products.
    {"ledgerline.png", {64, 64}, false},
    {"dovecrate.png", {64, 64}, false},
    {"pinfolder.png", {64, 64}, false},
    {"quillbox.png", {64, 64}, false},
    {"hourspan.png", {64, 64}, false},
    {"chordlamp.png", {64, 64}, false},
    {"tonewright.png", {64, 64}, false},
    {"reelspan.png", {64, 64}, false},
    {"framewick.png", {64, 64}, false},
    {"byteloom.png", {64, 64}, false},
    {"bracewright.png", {64, 64}, false},
};

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

/// What is seen of a colour that lies on the desk.
QColor onDesk(const QColor& color)
{
    const auto mix = [&color](int part, int ground) {
        return (part * color.alpha() + ground * (255 - color.alpha())) / 255;
    };
    return QColor(mix(color.red(), kDesk.red()), mix(color.green(), kDesk.green()),
                  mix(color.blue(), kDesk.blue()));
}

int pixels(const QString& length)
{
    return length.endsWith(QLatin1String("px")) ? length.chopped(2).toInt() : 0;
}

/// The size that a rule gives to its picture, or the one that the code gives to the button.
QSize sizeOf(const SheetRules& rules, const SheetRules::Rule& rule)
{
    static const QRegularExpression states(
        QStringLiteral(":(hover|pressed|checked|unchecked|disabled|off)\\b"));
    const QString named = QString(rule.selector).remove(states);
    for (const char* const prefix : {"", "min-"}) {
        const QLatin1String start(prefix);
        const QSize size(pixels(rules.value(named, start + QLatin1String("width"))),
                         pixels(rules.value(named, start + QLatin1String("height"))));
        if (!size.isEmpty()) {
            return size;
        }
    }
    static const QRegularExpression ofTheBar(QStringLiteral("#(More|App|MoreApps|Rate)Button"));
    static const QRegularExpression network(QStringLiteral("#\\w+(Join|Share)Button"));
    static const QHash<QString, QSize> others = {
        {QStringLiteral("QFrame#MenuBar"), {735, 45}},
        {QStringLiteral("QLabel#LogoLabel"), {290, 290}},
        {QStringLiteral("QComboBox::drop-down"), {10, 5}},
        {QStringLiteral("QTabBar QToolButton::left-arrow"), {16, 16}},
        {QStringLiteral("QTabBar QToolButton::right-arrow"), {16, 16}},
    };
    return named.contains(ofTheBar)  ? QSize(60, 32)
           : named.contains(network) ? QSize(190, 35)
                                     : others.value(named);
}

} // namespace

class TestStyleSheet : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void setsItselfUpOnAllWindowsWithoutAWarning()
    {
        s_messages.clear();
        const QtMessageHandler handler = qInstallMessageHandler(collectWarning);
        {
            qApp->setStyleSheet(QString());
            qApp->setStyleSheet(applicationStyleSheet());
            AllWindows windows;
            for (QWidget* window : QApplication::topLevelWidgets()) {
                window->ensurePolished();
                window->grab();
            }
        }
        qInstallMessageHandler(handler);
        QCOMPARE(s_messages.join(QLatin1Char('\n')), QString());
    }

    void selectsOnNamesThatExist()
    {
        AllWindows windows;
        QSet<QString> names;
        for (const QWidget* widget : QApplication::allWidgets()) {
            names.insert(widget->objectName());
        }
        for (const QString& name : m_rules.objectNames()) {
            QVERIFY2(names.contains(name), qPrintable(name));
        }
    }

    void knowsEveryFlatButtonWithAName()
    {
        // A flat button that the sheet doesn't draw is not seen at all.
        AllWindows windows;
        const QStringList known = m_rules.objectNames();
        int count = 0;
        for (QWidget* widget : QApplication::allWidgets()) {
            const auto* const button = qobject_cast<QPushButton*>(widget);
            if (button && button->isFlat() && button->icon().isNull()) {
                QVERIFY2(known.contains(button->objectName()), qPrintable(button->objectName()));
                ++count;
            }
        }
        QVERIFY(count > 20);
    }

    void showsItsPicturesAtHalfTheirSize()
    {
        for (const SheetRules::Rule& rule : m_rules.rules()) {
            for (const char* const property : {"image", "border-image"}) {
                const QString value = rule.declarations.value(QLatin1String(property));
                for (const QString& picture : SheetRules::pictures(value)) {
                    const QImage image(QLatin1String(":/") + picture);
                    QVERIFY2(!image.isNull(), qPrintable(picture));
                    // An indicator in a menu is a little smaller than one in a form.
                    const QSize spare = image.size() - 2 * sizeOf(m_rules, rule);
                    QVERIFY2(spare == QSize(0, 0) || spare == QSize(2, 2),
                             qPrintable(rule.selector + QLatin1Char(' ') + picture));
                }
            }
        }
    }

    void otherPicturesAreAsLargeAsTheirRoadNeeds_data()
    {
        QTest::addColumn<QString>("pattern");
        QTest::addColumn<QSize>("size");
        QTest::addColumn<bool>("hasTwin");

        for (const OtherPicture& other : kOtherPictures) {
            QTest::newRow(other.pattern)
                << QString::fromLatin1(other.pattern) << other.size << other.hasTwin;
        }
    }
    void otherPicturesAreAsLargeAsTheirRoadNeeds()
    {
        QFETCH(QString, pattern);
        QFETCH(QSize, size);
        QFETCH(bool, hasTwin);
        QDir folder(QLatin1String(":/") + QFileInfo(pattern).path());
        const QStringList names = folder.entryList({QFileInfo(pattern).fileName()})
                                      .filter(QRegularExpression(QStringLiteral("^[^@]*$")));
        QVERIFY(!names.isEmpty());
        for (const QString& name : names) {
            QCOMPARE(QImage(folder.filePath(name)).size(), size);
            QString twin = folder.filePath(name);
            twin.insert(twin.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
            QCOMPARE(QImage(twin).size(), hasTwin ? 2 * size : QSize(0, 0));
        }
    }

    void nobodyCarriesAPictureWithoutAUse()
    {
        QStringList used;
        for (const SheetRules::Rule& rule : m_rules.rules()) {
            for (const QString& value : rule.declarations) {
                used += SheetRules::pictures(value);
            }
        }
        for (const OtherPicture& other : kOtherPictures) {
            used += QDir(QStringLiteral(":/")).entryList({QLatin1String(other.pattern)});
        }
        const QStringList all = QDir(QStringLiteral(":/"))
                                    .entryList({QStringLiteral("*.png"), QStringLiteral("*.gif")});
        QVERIFY(all.size() > 100);
        for (QString name : all) {
            QVERIFY2(used.contains(name.remove(QStringLiteral("@2x"))), qPrintable(name));
        }
    }

    void textStandsOutFromItsGround_data()
    {
        QTest::addColumn<QString>("selector");
        QTest::addColumn<QString>("textOf");

        const auto add = [](const char* selector, const char* textOf = nullptr) {
            QTest::newRow(selector)
                << QString::fromLatin1(selector) << QString::fromLatin1(textOf ? textOf : selector);
        };
        for (const char* const selector : {"QToolTip",
                                           "QMenu",
                                           "QComboBox",
                                           "QComboBox::item",
                                           "QComboBox QAbstractItemView",
                                           "QLineEdit",
                                           "QSpinBox",
                                           "QHeaderView::section",
                                           "QToolButton",
                                           "QListWidget",
                                           "QListView::item:selected:active",
                                           "QListView::item:selected:!active",
                                           "QTextBrowser",
                                           "QProgressBar",
                                           "QTreeView::item:selected",
                                           "QLabel#DropArea QLabel",
                                           "QPushButton#PushButton",
                                           "QPushButton#PushButton:hover",
                                           "QPushButton#PushButton:pressed",
                                           "QPushButton#PushButtonAdd:hover",
                                           "QPushButton#PushButtonAdd:pressed",
                                           "QPushButton#RunBatchButton",
                                           "QPushButton#RunBatchButton:pressed",
                                           "QPushButton#DeleteButton",
                                           "QPushButton#BatchPauseButton:checked",
                                           "QPushButton#ActualPixelsButton:checked",
                                           "QPushButton#SysPreviewButton:pressed",
                                           "QListView#CreatorIconsView::item:selected:active",
                                           "QListView#CreatorIconsView::item:selected:!active"}) {
            add(selector);
        }
        add("QComboBox::item:selected", "QComboBox::item");
        add("QMenu::item:selected", "QMenu::item");
        add("QMenuBar::item:selected", "QMenuBar");
        add("QProgressBar::chunk", "QProgressBar");
        add("QListView#CreatorIconsView::item", "QListView#CreatorIconsView");
        add("QPushButton#RunBatchButton:hover", "QPushButton#RunBatchButton");
        add("QPushButton#DeleteButton:hover", "QPushButton#DeleteButton");
        add("QPushButton#DeleteButton:pressed", "QPushButton#DeleteButton");
        for (const char* const name : {"BatchPauseButton", "BatchStopButton"}) {
            const QByteArray button = QByteArray("QPushButton#") + name;
            add(button, button);
            add(button + ":hover", button);
            add(button + ":pressed", button);
        }
        add("QPushButton#ActualPixelsButton:checked:hover",
            "QPushButton#ActualPixelsButton:checked");
        add("QPushButton#HelpSlideButton", "QPushButton#HelpSlideButton");
        add("QPushButton#HelpSlideButton:hover", "QPushButton#HelpSlideButton");
    }
    void textStandsOutFromItsGround()
    {
        QFETCH(QString, selector);
        QFETCH(QString, textOf);
        const QVector<QColor> text =
            SheetRules::colors(m_rules.value(textOf, QStringLiteral("color")));
        const QVector<QColor> grounds =
            SheetRules::colors(m_rules.value(selector, QStringLiteral("background")));
        QCOMPARE(text.size(), 1);
        QVERIFY(!grounds.isEmpty());
        for (const QColor& ground : grounds) {
            const double ratio = contrast(text.first(), onDesk(ground));
            QVERIFY2(ratio >= 4.5, qPrintable(QStringLiteral("%1 on %2: %3")
                                                  .arg(text.first().name(), onDesk(ground).name())
                                                  .arg(ratio)));
        }
    }

private:
    const SheetRules m_rules{applicationStyleSheet()};
};

TESSARIN_TEST(TestStyleSheet);
#include "tst_StyleSheet.moc"
