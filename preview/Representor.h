#pragma once

#include <QFrame>
#include <QImage>
#include <QString>

class BatchDialog;
class ImagePreview;
class NodesOptionsPanel;

/// The result panel, headed "Result": shows what the flow makes of the current photo and runs the
/// batch. It computes nothing: pictures reach it by a signal, and requests leave it as signals.
class Representor : public QFrame
{
    Q_OBJECT

public:
    Representor(NodesOptionsPanel* optionsPanel, QWidget* parent);
    ~Representor() override;

signals:
    void next();
    void previous();
    void realSizeRequired();
    void gotoFirst();

public slots:
    void slotSetImage(const QImage& image);
    void slotSetFormat(const QString& format);
    void slotRealPreview();
    /// Runs all photos through the active nodes, in tab order.
    void slotRunBatchClicked();
    void slotNext();

private:
    ImagePreview* m_preview;
    BatchDialog* m_batchDialog;
    NodesOptionsPanel* m_optionsPanel;
    QString m_format;
};
