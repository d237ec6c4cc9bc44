#pragma once

#include <QMWidgets/Label.h>

class QImage;
class QPushButton;

/// The result picture of the main page, 360 by 360 pixels. With more than one photo it shows step
/// buttons and the position in the list while the mouse is over it; the steps leave as signals.
class ImagePreview : public QMWidgets::Label
{
    Q_OBJECT

public:
    explicit ImagePreview(QWidget* parent);

signals:
    void next();
    void previous();

public slots:
    /// Shows a picture of any size, fitted into the square. A null image clears it.
    void slotSetImage(const QImage& image);

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void updateInfo();
    void setControlsVisible(bool visible);

    QPushButton* m_nextButton;
    QPushButton* m_previousButton;
    QLabel* m_infoLabel;
};
