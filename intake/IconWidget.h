#pragma once

#include <QFrame>
#include <QList>
#include <QUrl>

class ItemsModel;
class ListView;
class QModelIndex;

/// The thumbnail strip: all photos as rows of thumbnail and name, 360 by 360 pixels.
///
/// While it is hidden its current row follows the photo in silence: the step that moved it has run
/// the flow already.
class IconWidget : public QFrame
{
    Q_OBJECT

public:
    explicit IconWidget(QWidget* parent);

signals:
    /// The user picked a row, or a step moved the current row while the strip is shown.
    void itemClicked(int row);

public slots:
    void slotItemClicked(const QModelIndex& index);
    void slotCurrentItem(const QModelIndex& current, const QModelIndex& previous);
    void slotUpdateItems(const QList<QUrl>& urls);
    /// A row outside the list leaves no row current.
    void slotSetCurrentIndex(int row);

private:
    ListView* m_view;
    ItemsModel* m_model;
};
