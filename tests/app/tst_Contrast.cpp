#include "AllWindows.h"

#include "app/Startup.h"
#include "intake/CreatorDropArea.h"
#include "intake/ListView.h"
#include "preview/ImagePreview.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "TabWalk.h"
#include "TextContrast.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QMWidgets/ImageArea.h>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QToolTip>
#include <QTreeView>

namespace
{

constexpr double kLeast = 4.5;

} // namespace

/// Texts are to be told from their grounds by everybody, in all states of what bears them.
class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { setUpApplication(*QMWidgets::App::app()); }
    void cleanupTestCase() { qApp->setStyleSheet(QString()); }

    void textsStandOutFromTheirGround()
    {
        Photos photos;
        AllWindows windows;
        fillIn(windows, photos);
        QSet<const QWidget*> known;
        forEachView(windows, [&](QWidget* window) {
            look(window, "at rest");
            if (known.contains(window)) {
                return; // another node, whose buttons bear no texts
            }
            known += window;
            lookAtButtons(window);
        });
        lookAtStrip(windows.page);
        for (QMenu* const menu : windows.page.findChildren<QMenu*>()) {
            if (menu->isEmpty()) {
                continue;
            }
            menu->ensurePolished();
            menu->resize(menu->sizeHint());
            look(menu, "at rest");
            menu->setActiveAction(menu->actions().value(0));
            look(menu, "with an entry in hand");
        }
        lookAtLegalNotices(windows.about);
        lookAtList(windows.settings);
        lookAtFiles(photos);
        lookAtToolTip();
        m_faint.removeDuplicates();
        QVERIFY2(m_faint.isEmpty(), qPrintable(m_faint.join(QLatin1Char('\n'))));
    }

private:
    void look(QWidget* window, const char* state)
    {
        const QList<TextContrast> texts = textContrasts(window);
        // Else the pictures with and without texts are the same by mistake.
        QVERIFY2(!texts.isEmpty(), window->metaObject()->className());
        for (const TextContrast& one : texts) {
            if (one.ratio < kLeast) {
                m_faint += QStringLiteral("%1: %2 on %3 in %4 %5, %6")
                               .arg(one.ratio, 0, 'f', 2)
                               .arg(one.text.name(), one.ground.name(),
                                    QLatin1String(window->metaObject()->className()),
                                    nameForMessage(one.widget), QLatin1String(state));
            }
        }
    }

    void lookAtButtons(QWidget* window)
    {
        QList<QAbstractButton*> buttons;
        for (QAbstractButton* const button : window->findChildren<QAbstractButton*>()) {
            if (!button->text().isEmpty()) {
                buttons += button;
            }
        }
        if (buttons.isEmpty()) {
            return;
        }
        for (QAbstractButton* const button : buttons) {
            button->setAttribute(Qt::WA_UnderMouse, true);
        }
        look(window, "under the mouse");
        for (QAbstractButton* const button : buttons) {
            button->setAttribute(Qt::WA_UnderMouse, false);
            button->setDown(true);
        }
        look(window, "pressed");
        for (QAbstractButton* const button : buttons) {
            button->setDown(false);
            const QSignalBlocker blocker(button);
            button->setChecked(!button->isChecked());
        }
        look(window, "checked, or not");
    }

    void lookAtStrip(MainPage& page)
    {
        page.show();
        page.findChild<QPushButton*>(QStringLiteral("IconViewButton"))->click();
        auto* const strip = page.findChild<ListView*>();
        look(&page, "with the strip");
        strip->setCurrentIndex(strip->model()->index(0, 0));
        look(&page, "with a photo in hand");
        page.hide();
    }

    void lookAtLegalNotices(QMWidgets::AboutDialog& about)
    {
        about.show();
        about.slotLegalNoticesClicked();
        look(&about, "with the notices");
        about.hide();
    }

    void lookAtFiles(const Photos& photos)
    {
        QFileDialog dialog(nullptr, QString(), photos.folder());
        dialog.setOption(QFileDialog::DontUseNativeDialog);
        dialog.setViewMode(QFileDialog::Detail);
        dialog.show();
        auto* const tree = dialog.findChild<QTreeView*>();
        QTRY_VERIFY_WITH_TIMEOUT(tree->model()->rowCount(tree->rootIndex()) > 0, 60000);
        tree->setCurrentIndex(tree->model()->index(0, 0, tree->rootIndex()));
        look(&dialog, "with a file in hand");
    }

    void lookAtList(QWidget& dialog)
    {
        dialog.show();
        auto* const box = dialog.findChild<QComboBox*>();
        box->showPopup();
        look(box->view()->window(), "open");
        box->hidePopup();
        dialog.hide();
    }

    void lookAtToolTip()
    {
        QToolTip::showText(QPoint(10, 10), QStringLiteral("Tool tip"));
        for (QWidget* const window : QApplication::topLevelWidgets()) {
            if (window->inherits("QTipLabel")) {
                look(window, "shown");
            }
        }
        QToolTip::hideText();
    }

    /// Lists with rows, photos in their squares, and what the mouse brings up over them.
    void fillIn(AllWindows& windows, Photos& photos)
    {
        // The lightest photo is the hardest ground for white text.
        QImage white(400, 300, QImage::Format_RGB32);
        white.fill(Qt::white);
        QList<QUrl> urls;
        for (const char* const name : {"one.png", "two.png"}) {
            const QString path = photos.path(QLatin1String(name));
            QVERIFY(white.save(path));
            urls += QUrl::fromLocalFile(path);
        }
        windows.page.slotFilesDropped(urls);
        windows.view.slotLoad(white);
        QEvent enter(QEvent::Enter);
        for (QWidget* const square :
             {static_cast<QWidget*>(windows.page.findChild<CreatorDropArea*>()),
              static_cast<QWidget*>(windows.page.findChild<ImagePreview*>()),
              static_cast<QWidget*>(windows.view.findChild<QMWidgets::ImageArea*>())}) {
            QCoreApplication::sendEvent(square, &enter);
        }
        for (const char* const name : {"one.flow", "two.flow"}) {
            windows.favorites.addFlow(QLatin1String(name));
        }
        windows.batch.findChild<QProgressBar*>()->setValue(100);
        windows.batch.findChild<QLabel*>()->setText(QStringLiteral("1 of 2"));
    }

    QStringList m_faint;
};

TESSARIN_TEST(TestContrast);
#include "tst_Contrast.moc"
