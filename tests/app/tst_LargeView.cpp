#include "batch/BatchWorker.h"
#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/Operations.h"
#include "intake/CommonData.h"
#include "intake/Creator.h"
#include "support/ImageCompare.h"
#include "support/Photos.h"
#include "support/TestMain.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QSlider>
#include <QSpinBox>
#include <random>

namespace
{

/// Sets each control of a node to anything that it takes.
class Tuner
{
public:
    explicit Tuner(quint32 seed)
        : m_random(seed)
    {
    }

    int upTo(int end) { return int(m_random() % quint32(end)); }

    void tune(BaseNode& node)
    {
        for (QComboBox* box : node.findChildren<QComboBox*>()) {
            box->setCurrentIndex(upTo(qMax(1, box->count())));
        }
        for (QAbstractButton* button : node.findChildren<QAbstractButton*>()) {
            if (button->isCheckable()) {
                button->setChecked(upTo(2) == 1);
            }
        }
        for (QSlider* slider : node.findChildren<QSlider*>()) {
            // Numbers of pixels go up to thousands, which takes its time and shows nothing more.
            const int end = qMin(slider->maximum(), slider->minimum() + 100) + 1;
            slider->setValue(slider->minimum() + upTo(end - slider->minimum()));
        }
        for (QSpinBox* box : node.findChildren<QSpinBox*>()) {
            if (box->minimum() < 0) {
                box->setValue(upTo(41) - 20);
            }
        }
        for (QLineEdit* edit : node.findChildren<QLineEdit*>()) {
            if (!edit->inherits("QExpandingLineEdit") && upTo(2) == 1) {
                edit->setText(QStringLiteral("<W> & 1\u00fc"));
            }
        }
    }

private:
    std::mt19937 m_random;
};

QList<QUrl> photosOfAllKinds(Photos& photos)
{
    QImage printed = noise(QSize(41, 33), 1, QImage::Format_RGB32, true);
    printed.setDotsPerMeterX(11811);
    printed.setDotsPerMeterY(11811);
    const QImage picture = noise(QSize(37, 51), 3);
    return {
        photos.add(QStringLiteral("opaque.jpeg"), printed),
        photos.add(QStringLiteral("alpha.png"), noise(QSize(60, 40), 2)),
        photos.add(QStringLiteral("palette@2x.png"),
                   picture.convertToFormat(QImage::Format_Indexed8)),
        photos.add(QStringLiteral("gray.bmp"), picture.convertToFormat(QImage::Format_Grayscale8)),
        photos.add(QStringLiteral("deep.png"), picture.convertToFormat(QImage::Format_RGBA64)),
        photos.add(QStringLiteral("dot.png"), noise(QSize(1, 1), 6))};
}

/// What the batch makes of a photo, before it goes to a file.
QImage batchResult(const QUrl& photo, const BatchWorker::Operations& operations)
{
    const Photos results;
    BatchWorker worker;
    worker.setJob(QStringLiteral("PNG"), -1, false, QString(), 0,
                  results.folder() + QLatin1Char('/'), {photo}, operations);
    QSignalSpy info(&worker, &BatchWorker::updateInfo);
    worker.slotDoWork();
    return info.first().first().value<QImage>();
}

} // namespace

/// What the user judges in the large view is what the batch delivers.
class TestLargeView : public QObject
{
    Q_OBJECT

private slots:
    void showsWhatTheBatchDelivers_data()
    {
        QTest::addColumn<QStringList>("names");
        QTest::addColumn<quint32>("seed");
        for (const Operation& operation : operations()) {
            for (quint32 seed = 1; seed <= 4; ++seed) {
                QTest::addRow("%s %u", qPrintable(operation.name), seed)
                    << QStringList(operation.name) << seed;
            }
        }
        for (quint32 seed = 1; seed <= 12; ++seed) {
            Tuner tuner(seed);
            QStringList chain;
            while (chain.size() < 4) {
                chain += operations().at(tuner.upTo(operations().size())).name;
            }
            QTest::addRow("chain %u", seed) << chain << seed;
        }
    }

    void showsWhatTheBatchDelivers()
    {
        QFETCH(QStringList, names);
        QFETCH(quint32, seed);
        Tuner tuner(seed);
        NodesOptionsPanel options(nullptr);
        Creator creator(&options, nullptr);
        QMap<int, BaseNode*> flow;
        BatchWorker::Operations told;
        for (const QString& name : qAsConst(names)) {
            BaseNode* const node = options.createNode(name);
            tuner.tune(*node);
            node->findChild<QGroupBox*>()->setChecked(names.size() == 1 || tuner.upTo(4) > 0);
            flow[flow.size()] = node;
            if (node->isActive()) {
                told += qMakePair(name, node->parametersText());
            }
        }
        options.slotFlowChanged(flow);

        CommonData::instance()->setPreviewMode(false);
        const auto atEnd = qScopeGuard([] { CommonData::instance()->setPreviewMode(true); });
        Photos photos;
        for (const QUrl& photo : photosOfAllKinds(photos)) {
            QSignalSpy shown(&creator, &Creator::imageChanged);
            creator.setFiles({photo});
            const QString difference =
                imageDifference(shown.last().first().value<QImage>(), batchResult(photo, told));
            QVERIFY2(difference.isEmpty(), qPrintable(photo.fileName() + ": " + difference + "\n" +
                                                      told.value(0).second));
        }
    }
};

TESSARIN_TEST(TestLargeView);
#include "tst_LargeView.moc"
