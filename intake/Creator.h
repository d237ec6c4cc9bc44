#pragma once

#include <QImage>
#include <QList>
#include <QUrl>
#include <QWidget>

class CreatorDropArea;
class IconWidget;
class NodesOptionsPanel;

/// The source panel, headed "Original": the square with the current photo or, in its place, the
/// thumbnail strip. It hands each new current photo to the options panel, at full size, and passes
/// that panel's results on.
class Creator : public QWidget
{
    Q_OBJECT

public:
    Creator(NodesOptionsPanel* panel, QWidget* parent);

    /// Replaces the photos by a list that isn't empty.
    void setFiles(const QList<QUrl>& urls);

signals:
    void imageChanged(const QImage& image);
    void formatChanged(const QString& format);
    void realPreview();

public slots:
    void slotDropped(bool taken);
    /// True shows the square, false the strip.
    void slotShowModeChanged(bool mode);
    void slotNext();
    void slotPrevious();
    void slotGotoFirst();

private:
    CreatorDropArea* m_dropArea;
    IconWidget* m_iconWidget;
    NodesOptionsPanel* m_optionsPanel;
};
