#pragma once

#include <QFrame>

class QHBoxLayout;
class QImage;
class QPushButton;
class QSlider;

namespace QMWidgets
{

class ImageArea;

/// A picture with a row of zoom controls below and a button above that hands it to the system's own
/// viewer. Zoom reduces only: 100 percent is the picture's own size and the most there is; fitted
/// to the window a small picture is enlarged. View and zoom stay from one picture to the next.
class ImageViewer : public QFrame
{
    Q_OBJECT

public:
    explicit ImageViewer(QWidget* parent = nullptr);

    /// Sets the text over the picture and shows it; an empty one hides it.
    void setInfo(const QString& text);
    /// With a single picture there are no step buttons. Setting it also hides the text.
    void setSingleImage(bool singleImage);

signals:
    void next();
    void previous();
    /// The desktop took the picture over.
    void systemPreviewOpened();
    void infoChanged();

public slots:
    /// Errors: a file that can't be read leaves the view blank.
    void slotLoad(const QString& path);
    void slotLoad(const QImage& image);
    void slotActualPixels();
    /// The view at the slider's value, 1 to 100 percent. The slider isn't moved.
    void slotZoom(int value);
    void slotFitScreen();
    void slotIncZoom();
    void slotDecZoom();
    /// Writes the picture at its full size to preview.png in the application's home folder, over
    /// the one of the last time, and opens that file.
    void slotSysPreview();
    /// Leaves the fitted view for the zoom at which the slider stands.
    void slotShowInfo();

private:
    void makeSlider();
    void makeViewButtons();
    QPushButton* makeStepButton(const QString& objectName);
    QHBoxLayout* makeZoomRow();
    void layOut();

    ImageArea* m_area;
    QSlider* m_slider;
    QPushButton* m_fitButton;
    QPushButton* m_actualPixelsButton;
};

} // namespace QMWidgets
