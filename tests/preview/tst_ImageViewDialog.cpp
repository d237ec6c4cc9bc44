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

} // namespace

class TestImageViewDialog : public QObject
{
    Q_OBJECT

private slots:
    void showsTheResultAtRealSizeUntilItCloses()
    {
        const std::function<void(QDialog*)> endings[] = {
            [](QDialog* dialog) { QTest::keyClick(dialog, Qt::Key_Escape); },
            [](QDialog* dialog) {
                const UrlCatcher desktop;
                dialog->findChild<QPushButton*>(QStringLiteral("SysPreviewButton"))->click();
            },
            [](QDialog*) {
                QCoreApplication::exit();
            }};
        for (const auto& end : endings) {
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
                end(dialog);
            });
            QCOMPARE(picture, kPhoto);
            QCOMPARE(panels.sizes, QList<QSize>({kPhoto}));
            panels.options.slotParametersChanged();
            QCOMPARE(panels.sizes.last(), QSize(360, 225));
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
        QCOMPARE(pictureOf(&dialog), QSize(12, 10));
    }
};

TESSARIN_TEST(TestImageViewDialog);
#include "tst_ImageViewDialog.moc"
