#pragma once

#include <QAbstractListModel>
#include <QImage>
#include <QList>
#include <QMap>
#include <QUrl>

/// The photos as a list model: a name and a thumbnail of 48 by 48 pixels for each row.
///
/// The list holds exactly what it was given, in that order, doubles and unreadable files included.
/// Thumbnails are made when a row is first asked for one, on the asking thread, and kept until the
/// list is replaced; a file that gave none is tried again at each asking. Interface thread only.
class ItemsModel : public QAbstractListModel
{
    Q_OBJECT

public:
    explicit ItemsModel(QObject* parent = nullptr);

    /// Replaces the whole list and drops all thumbnails.
    void setItems(const QList<QUrl>& urls);
    QList<QUrl> items() const { return m_items; }

    /// The photo's file name without its last extension; empty for a row outside the list.
    QString itemName(int index) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Takes anything that converts to a QUrl as the row's photo, whatever the role. The row keeps
    /// its thumbnail.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    bool holds(const QModelIndex& index) const;
    QImage thumbnail(int row) const;

    QList<QUrl> m_items;
    mutable QMap<int, QImage> m_thumbnails;
};
