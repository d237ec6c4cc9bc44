#include "AllWindows.h"
#include "app/Startup.h"
#include "app/StyleSheet.h"
#include "SheetRules.h"
#include "support/TestMain.h"
#include "TextContrast.h"

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

/// The pictures that the sheet doesn't size.
const struct OtherPictures {
    QSize size;
    bool hasTwin;
    const char* patterns;
} kOtherPictures[] = {
    // Laid out pixel for pixel, so the toolkit is to find a twin for dense screens.
    {{64, 64}, true, "Icon_???.png"},
    {{8, 8}, true, "panelbackground.png"},
    {{72, 24}, true, "pix/corvanelogo.png"},
    {{48, 48}, true, "message_*.png"},
    {{128, 128}, true, "update_available.png update_not_available.png"},
    // Scaled by what shows them.
    {{720, 720}, false, "DisabledNode.png droparea.png"},
    {{1470, 350}, false, "initlabel_??.png"},
    {{1200, 600}, false, "corvane.png"},
    {{200, 200}, false, "arrow.gif arrow_rtl.gif"},
    {{192, 192}, false, "loading_image.gif"},
    // Icons of buttons and menus.
    {{48, 48},
     false,
     "openfiles.png appicon.png moreappsicon.png feedback.png webpage.png star.png new.png "
     "save.png delete.png GotoIcon.png"},
    // The maker's other products.
    {{64, 64},
     false,
     "ledgerline.png dovecrate.png pinfolder.png quillbox.png hourspan.png chordlamp.png "
     "tonewright.png reelspan.png framewick.png byteloom.png bracewright.png"},
};

QStringList patternsOf(const OtherPictures& pictures)
{
    return QString::fromLatin1(pictures.patterns).split(QLatin1Char(' '));
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
    static const QRegularExpression states(QStringLiteral(
        ":(hover|pressed|checked|unchecked|disabled|off)\\b|\\[layoutDirection=.*\\]"));
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

    void namesAndFlatButtonsKnowEachOther()
    {
        AllWindows windows;
        const QStringList known = m_rules.objectNames();
        QSet<QString> names;
        for (const QWidget* widget : QApplication::allWidgets()) {
            names.insert(widget->objectName());
            const auto* const button = qobject_cast<const QPushButton*>(widget);
            // A flat button that the sheet doesn't draw is not seen at all.
            if (button && button->isFlat() && button->icon().isNull()) {
                QVERIFY2(known.contains(button->objectName()), qPrintable(button->objectName()));
            }
        }
        for (const QString& name : known) {
            QVERIFY2(names.contains(name), qPrintable(name));
        }
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

    void otherPicturesAreAsLargeAsTheirRoadNeeds()
    {
        static const QRegularExpression withoutTwins(QStringLiteral("^[^@]*$"));
        for (const OtherPictures& pictures : kOtherPictures) {
            for (const QString& pattern : patternsOf(pictures)) {
                const QDir folder(QLatin1String(":/") + QFileInfo(pattern).path());
                const QStringList names =
                    folder.entryList({QFileInfo(pattern).fileName()}).filter(withoutTwins);
                QVERIFY2(!names.isEmpty(), qPrintable(pattern));
                for (const QString& name : names) {
                    QString twin = folder.filePath(name);
                    QVERIFY2(QImage(twin).size() == pictures.size, qPrintable(name));
                    twin.insert(twin.lastIndexOf(QLatin1Char('.')), QStringLiteral("@2x"));
                    const QSize expected = pictures.hasTwin ? 2 * pictures.size : QSize(0, 0);
                    QVERIFY2(QImage(twin).size() == expected, qPrintable(twin));
                }
            }
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
        for (const OtherPictures& pictures : kOtherPictures) {
            used += QDir(QStringLiteral(":/")).entryList(patternsOf(pictures));
        }
        const QStringList all = QDir(QStringLiteral(":/"))
                                    .entryList({QStringLiteral("*.png"), QStringLiteral("*.gif")});
        QVERIFY(all.size() > 100);
        for (QString name : all) {
            QVERIFY2(used.contains(name.remove(QStringLiteral("@2x"))), qPrintable(name));
        }
    }

    void textStandsOutFromItsGround()
    {
        // What has a ground of its own, but no text on it.
        const QStringList withoutText = {QStringLiteral("QMenu::separator"),
                                         QStringLiteral("QLabel#DropArea"),
                                         QStringLiteral("QListView#CreatorIconsView")};
        int count = 0;
        for (const SheetRules::Rule& rule : m_rules.rules()) {
            const QVector<QColor> text = textColors(rule.selector);
            if (text.isEmpty() || withoutText.contains(rule.selector)) {
                continue;
            }
            const double least = rule.selector.contains(QLatin1String(":disabled")) ? 3 : 4.5;
            const QString ground = m_rules.value(rule.selector, QStringLiteral("background"));
            for (const QColor& color : SheetRules::colors(ground)) {
                const double ratio = contrast(text.first(), onDesk(color));
                QVERIFY2(ratio >= least, qPrintable(QStringLiteral("%1: %2 on %3 is %4")
                                                        .arg(rule.selector, text.first().name(),
                                                             onDesk(color).name())
                                                        .arg(ratio)));
                ++count;
            }
        }
        QVERIFY(count > 80);
    }

private:
    /// Of a selector, or else of what it is a state or a part of.
    QVector<QColor> textColors(QString selector) const
    {
        for (;;) {
            const QString value = m_rules.value(selector, QStringLiteral("color"));
            const int colon = selector.lastIndexOf(QLatin1Char(':'));
            if (!value.isEmpty() || colon < 0) {
                return SheetRules::colors(value);
            }
            selector.truncate(colon);
        }
    }

    const SheetRules m_rules{applicationStyleSheet()};
};

TESSARIN_TEST(TestStyleSheet);
#include "tst_StyleSheet.moc"
