#include "flow/NodesOptionsPanel.h"
#include "intake/CommonData.h"
#include "preview/ImageViewDialog.h"
#include "preview/Representor.h"
#include "support/ModalDialog.h"
#include "support/Photos.h"
#include "support/TestMain.h"
#include "support/UrlCatcher.h"
#include "support/WindowEvents.h"

#include <QLabel>
#include <QPropertyAnimation>
#include <QScreen>

using Close = std::function<void(QDialog*)>;
Q_DECLARE_METATYPE(Close)

namespace
{

const QSize kPhoto(800, 500);

/// The result panel with the options panel behind it, wired as the main page does it.
struct Panels {
    Panels()
    {
        QObject::connect(&options, &NodesOptionsPanel::imageChanged, &representor,
                         &Representor::slotSetImage);
        QObject::connect(&representor, &Representor::realSizeRequired, &options,
                         &NodesOptionsPanel::slotParametersChanged);
        QObject::connect(&options, &NodesOptionsPanel::imageChanged, &options,
                         [this](const QImage& image) { sizes += image.size(); });
        CommonData::instance()->setCount(3);
        CommonData::instance()->setCurrentIndex(1);
        options.setImage(noise(kPhoto, 1));
        sizes.clear();
        representor.show();
    }

    NodesOptionsPanel options{nullptr};
    Representor representor{&options, nullptr};
    QList<QSize> sizes; ///< of the results
};

QPushButton* previewButton(Panels& panels)
{
    return panels.representor.findChild<QPushButton*>(QStringLiteral("PreviewButton"));
}

/// The size of the picture that a large view holds, whatever its zoom.
QSize pictureOf(QDialog* dialog)
{
    dialog->findChild<QPushButton*>(QStringLiteral("ActualPixelsButton"))->click();
    return dialog->findChild<QLabel*>(QStringLiteral("PreviewLabel"))
        ->pixmap(Qt::ReturnByValue)
        .size();
}

QLabel* infoOf(const QDialog& dialog)
{
    for (QLabel* label : dialog.findChildren<QLabel*>()) {
        if (label->objectName().isEmpty()) {
            return label;
        }
    }
    return nullptr;
}

} // namespace

class TestImageViewDialog : public QObject
{
    Q_OBJECT

private slots:
    void showsTheResultAtRealSizeUntilItCloses_data()
    {
        QTest::addColumn<Close>("close");
        QTest::newRow("Escape") << Close(
            [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); });
        QTest::newRow("window button") << Close([](QDialog* dialog) { dialog->close(); });
        QTest::newRow("handed over") << Close([](QDialog* dialog) {
            const UrlCatcher desktop;
            dialog->findChild<QPushButton*>(QStringLiteral("SysPreviewButton"))->click();
        });
        QTest::newRow("the program quits") << Close([](QDialog*) { QCoreApplication::exit(); });
    }

    void showsTheResultAtRealSizeUntilItCloses()
    {
        QFETCH(Close, close);
        Panels panels;
        QSize picture;
        const auto open = [&] {
            // Only a running program can quit.
            QTimer::singleShot(0, &panels.representor, [&] {
                previewButton(panels)->click();
                QCoreApplication::exit();
            });
            QCoreApplication::exec();
        };
        withModalDialog(open, [&](QDialog* dialog) {
            picture = pictureOf(dialog);
            close(dialog);
        });
        QCOMPARE(picture, kPhoto);
        QCOMPARE(panels.sizes, QList<QSize>({kPhoto}));
        panels.options.slotParametersChanged();
        QCOMPARE(panels.sizes.last(), QSize(360, 225));
    }

    void growsToItsPlaceAndForgetsTheAnimation()
    {
        Panels panels;
        const QSize desktop = QGuiApplication::primaryScreen()->virtualSize();
        const QSize size(int(0.7f * float(desktop.width())), int(0.7f * float(desktop.height())));
        const QSize rest = desktop - size;
        for (int opening = 1; opening <= 2; ++opening) {
            QRect place;
            const auto waitForPlace = [&place](QDialog* dialog) {
                if (QTest::qWaitFor([=] { return !dialog->findChild<QPropertyAnimation*>(); })) {
                    place = dialog->geometry();
                }
            };
            withModalDialog([&] { previewButton(panels)->click(); }, waitForPlace);
            QCOMPARE(place, QRect(QPoint(rest.width() / 2, rest.height() / 2), size));
        }
    }

    void opensOnceForPressesWhileTheFlowRuns()
    {
        Panels panels;
        QVERIFY(QTest::qWaitForWindowExposed(&panels.representor));
        connect(&panels.representor, &Representor::realSizeRequired, &panels.options,
                [&, once = true]() mutable {
                    if (std::exchange(once, false)) {
                        postClick(previewButton(panels));
                        postClick(previewButton(panels));
                        panels.options.slotParametersChanged(); // lets them through
                    }
                });
        int openings = 0;
        QTimer closer;
        connect(&closer, &QTimer::timeout, &closer, [&] {
            if (QWidget* const dialog = QApplication::activeModalWidget()) {
                ++openings;
                dialog->close();
            }
        });
        closer.start(0);
        for (int expected = 1; expected <= 2; ++expected) {
            previewButton(panels)->click();
            QCoreApplication::processEvents();
            QCOMPARE(openings, expected);
        }
    }

    void aStepDuringALoadShowsTheNewerPhoto()
    {
        ImageViewDialog dialog(nullptr);
        dialog.resize(500, 500);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        CommonData::instance()->setCount(3);
        CommonData::instance()->setCurrentIndex(0);
        auto* const arrow = dialog.findChild<QPushButton*>(QStringLiteral("NextImageButton"));
        auto* const loading = dialog.findChild<QLabel*>(QStringLiteral("ImageLoadingLabel"));
        int steps = 0;
        connect(&dialog, &ImageViewDialog::next, &dialog, [&] {
            CommonData::instance()->setCurrentIndex(++steps);
            if (steps == 1) {
                // It comes while this step's photo loads.
                QTimer::singleShot(0, arrow, &QPushButton::click);
            }
            const int photo = steps;
            dialog.slotLoad(noise(QSize(10 + photo, 10), 1));
        });
        arrow->click();
        QCOMPARE(steps, 2);
        QVERIFY(!loading->isVisible());
        QCOMPARE(infoOf(dialog)->text(), QStringLiteral("<H1>3 of 3</H1>"));
        QCOMPARE(pictureOf(&dialog), QSize(12, 10));
    }

    void letsNoEventThroughWhileClosed()
    {
        ImageViewDialog dialog(nullptr);
        bool came = false;
        QTimer::singleShot(0, &dialog, [&] { came = true; });
        dialog.slotLoad(noise(QSize(10, 10), 1));
        QVERIFY(!came);
        dialog.show();
        dialog.slotLoad(noise(QSize(10, 10), 1));
        QVERIFY(came);
    }

    void offersStepsForMoreThanOnePhoto()
    {
        ImageViewDialog dialog(nullptr);
        dialog.show();
        auto* const arrow = dialog.findChild<QPushButton*>(QStringLiteral("NextImageButton"));
        for (const int count : {0, 1, 2}) {
            CommonData::instance()->setCount(count);
            dialog.slotLoad(QImage());
            QCOMPARE(infoOf(dialog)->isVisible(), count > 1);
            sendEvent(arrow->parentWidget(), QEvent::Enter);
            QCOMPARE(arrow->isVisible(), count > 1);
        }
    }
};

TESSARIN_TEST(TestImageViewDialog);
#include "tst_ImageViewDialog.moc"
