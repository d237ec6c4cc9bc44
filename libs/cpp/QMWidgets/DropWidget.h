#pragma once

#include "Label.h"

#include <QList>
#include <QUrl>

class QPushButton;

namespace QMWidgets
{

class DropVeil;

/// The window that takes the first photos, by drag and drop or through a file dialog. It hands the
/// list over as it came, with files of any kind in it, and hides.
class DropWidget : public Label
{
    Q_OBJECT

public:
    explicit DropWidget(QWidget* parent = nullptr);

signals:
    /// What the user gave, in its order.
    void dropped(const QList<QUrl>& urls);

public slots:
    /// Lets the user choose files; after a cancel nothing changes.
    void slotOpenClicked();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void handOver(const QList<QUrl>& urls);

    QList<QUrl> m_urls;
    QPushButton* m_openButton = nullptr;
    DropVeil* m_dropVeil;
};

} // namespace QMWidgets
