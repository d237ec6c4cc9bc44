#pragma once

#include <QFrame>
#include <QImage>
#include <QString>

class BatchDialog;
class ImagePreview;
class ImageViewDialog;
class NodesOptionsPanel;

/// The result panel, headed "Result": shows what the flow makes of the current photo, small and in
/// the large view, and runs the batch. It computes nothing: pictures reach it by a signal, and
/// requests leave it as signals. It alone switches the preview mode, for as long as the large view
/// is wanted.
class Representor : public QFrame
{
    Q_OBJECT

public:
    Representor(NodesOptionsPanel* optionsPanel, QWidget* parent);
    ~Representor() override;

signals:
    void next();
    void previous();
    /// The flow has to run once more, now at real size.
    void realSizeRequired();
    void gotoFirst();

public slots:
    void slotSetImage(const QImage& image);
    void slotSetFormat(const QString& format);
    void slotRealPreview();
    /// Opens the large view and comes back when it has closed. A press that comes before then, from
    /// the run that it starts, does nothing.
    void slotPreview();
    /// Runs all photos through the active nodes, in tab order.
    void slotRunBatchClicked();
    void slotNext();

private:
    void growOutOfPanel();

    ImagePreview* m_preview;
    ImageViewDialog* m_viewDialog;
    BatchDialog* m_batchDialog;
    NodesOptionsPanel* m_optionsPanel;
    QString m_format;
    bool m_isPreviewing = false;
};
