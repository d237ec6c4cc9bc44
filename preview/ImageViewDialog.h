#pragma once

#include <QDialog>

class QImage;

namespace QMWidgets
{
class ImageViewer;
}

/// The result at its own size in a window of its own, with the position in the list of photos.
/// Steps leave as signals. It takes each new result, open or not, so that it never opens empty, and
/// keeps its view and zoom from one opening to the next.
class ImageViewDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ImageViewDialog(QWidget* parent);

signals:
    void next();
    void previous();

public slots:
    void slotUpdateInfo();
    /// Shows a picture; a null one shows nothing. While the dialog is open, events get their turn
    /// first; if one of them brings a newer picture, that one stays.
    void slotLoad(const QImage& image);

private:
    QMWidgets::ImageViewer* m_viewer;
    quint64 m_lastLoad = 0;
};
