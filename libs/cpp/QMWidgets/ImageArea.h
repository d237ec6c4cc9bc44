#pragma once

#include <QFrame>
#include <QMovie>
#include <QPixmap>

class QLabel;
class QPushButton;
class QScrollArea;

namespace QMWidgets
{

/// A picture in a scroll area, fitted into it or at a zoom, under an overlay of step buttons, an
/// info text and a loading animation. Each view is scaled from the whole picture, when it changes.
///
/// The overlay follows events only. The text and the buttons are seen from the start until the
/// mouse leaves, and again whenever it comes. The animation runs from a step until a picture comes.
class ImageArea : public QFrame
{
    Q_OBJECT

public:
    explicit ImageArea(QWidget* parent = nullptr);

    /// Shows another picture in the same view and ends the loading animation. A null one shows
    /// nothing.
    void setPixmap(const QPixmap& pixmap);
    /// The picture in its own size, whatever the view.
    const QPixmap& fullPixmap() const { return m_fullPixmap; }
    /// Sets the info text and shows it; an empty one hides it and leaves the text.
    void setInfo(const QString& text);
    /// With a single picture there are no step buttons. Setting it also hides the info text.
    void setSingleImage(bool singleImage);

signals:
    void next();
    void previous();
    /// After each step.
    void infoChanged();

public slots:
    /// Units: percent of the picture's own size, 1 to 100.
    void slotZoom(int zoom);
    /// The largest view of the whole picture, enlarged if need be.
    void slotFitScreen();
    void slotHideInfo();
    void slotShowInfo();
    void slotNextClicked();
    void slotPreviousClicked();

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void redraw();
    void showZoomed();
    void showFitted();
    void showPicture(const QPixmap& picture, bool scrollsAcross, bool scrollsDown);
    void startLoading();
    void setStepsVisible(bool visible);

    QScrollArea* m_scrollArea;
    QLabel* m_imageLabel;
    int m_zoom = 100;
    QPixmap m_fullPixmap;
    bool m_fitToWindow = true;
    QPushButton* m_nextButton;
    QPushButton* m_previousButton;
    QLabel* m_infoLabel;
    QLabel* m_loadingLabel;
    QMovie m_loadingMovie;
    bool m_singleImage = false;
};

} // namespace QMWidgets
