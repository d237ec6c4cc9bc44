#pragma once

#include <QMWidgets/Label.h>

#include <QImage>
#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

class NodesOptionsPanel;
class QPushButton;

namespace QMWidgets
{
class DropVeil;
class RepeatGate;
} // namespace QMWidgets

/// The square of the source panel: takes photos by drop or file dialog, shows the current one and
/// steps through them. It owns the list of photos and the current index; the shared data and the
/// strip hold copies. Once photos have arrived the keyboard reaches it: arrows step as the buttons
/// do, Home goes to the first photo, and Space or Enter opens other photos.
class CreatorDropArea : public QMWidgets::Label
{
    Q_OBJECT

public:
    CreatorDropArea(NodesOptionsPanel* panel, QWidget* parent);

    /// Replaces the list by one that isn't empty; the first photo becomes current.
    void setFiles(const QList<QUrl>& urls);

    /// Local path of the current photo; empty until photos arrive, and for a URL that is no local
    /// file.
    QString currentFile() const { return m_currentFile; }
    /// The current photo at full size, null if it can't be read. Call it once for each dropped():
    /// the square gives away the image that it has read for itself. Without one it reads the file.
    QImage takePhoto();

signals:
    /// The current photo is to be taken through the flow. The argument is always true.
    void dropped(bool taken);
    void indexChanged(int index);
    void updateItems(const QList<QUrl>& urls);

public slots:
    void slotStateChanged(const QString& state);
    void slotNext();
    void slotPreviuos(); // sic
    void slotGotoFirst();
    void slotOpenClicked();
    void slotItemClicked(int index);

protected:
    void showEvent(QShowEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void handleKey(QKeyEvent* event);
    void stepTo(int index);
    void goTo(int index);
    std::optional<QImage> loadPixmap();
    void updateCounter();
    void setControlsVisible(bool visible);

    QString m_currentFile;
    std::optional<QImage> m_photo; ///< read, but not taken yet
    bool m_isPixmapOld = false;
    NodesOptionsPanel* m_optionsPanel;
    QList<QUrl> m_urls;
    int m_currentIndex = 0;
    QPushButton* m_nextButton;
    QPushButton* m_previousButton;
    QLabel* m_counterLabel;
    QPushButton* m_openButton;
    QMWidgets::DropVeil* m_dropVeil;
    QMWidgets::RepeatGate* m_repeatGate;
};
