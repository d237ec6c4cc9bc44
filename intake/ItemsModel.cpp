#include "intake/ItemsModel.h"

#include "intake/BaseNameOf.h"
#include <MGraphX/GraphX.h>

#include <QColor>
#include <QFileInfo>
#include <QImageReader>

namespace
{

constexpr QSize kThumbnailSize(48, 48);
/// Photos are decoded at this part of their size, which the common decoders do many times faster.
constexpr double kReduction = 20.0;

QImage readThumbnail(const QString& path)
{
    QImageReader reader(path, QByteArray());
    const QSize size = reader.size();
    reader.setScaledSize(
        QSize(qRound(size.width() / kReduction), qRound(size.height() / kReduction)));
    return MGraphX::GraphX::fitInto(reader.read(), kThumbnailSize, QColor(100, 100, 100, 0));
}

} // namespace

ItemsModel::ItemsModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

void ItemsModel::setItems(const QList<QUrl>& urls)
{
    beginResetModel();
    m_items = urls;
    m_thumbnails.clear();
    endResetModel();
}

QString ItemsModel::itemName(int index) const
{
    return baseNameOf(QFileInfo(m_items.value(index).toLocalFile()));
}

int ItemsModel::rowCount(const QModelIndex&) const
{
    return m_items.size();
}

QVariant ItemsModel::data(const QModelIndex& index, int role) const
{
    if (!holds(index)) {
        return QVariant();
    }
    switch (role) {
    case Qt::DisplayRole:
        return itemName(index.row());
    case Qt::DecorationRole:
        return thumbnail(index.row());
    case Qt::SizeHintRole:
        return kThumbnailSize;
    default:
        return QVariant();
    }
}

bool ItemsModel::setData(const QModelIndex& index, const QVariant& value, int)
{
    if (!holds(index)) {
        return false;
    }
    m_items[index.row()] = value.toUrl();
    emit dataChanged(index, index);
    return true;
}

QVariant ItemsModel::headerData(int, Qt::Orientation, int) const
{
    return QVariant();
}

Qt::ItemFlags ItemsModel::flags(const QModelIndex& index) const
{
    return QAbstractListModel::flags(index);
}

bool ItemsModel::holds(const QModelIndex& index) const
{
    return index.isValid() && index.row() < m_items.size();
}

QImage ItemsModel::thumbnail(int row) const
{
    QImage& image = m_thumbnails[row];
    if (image.isNull()) {
        image = readThumbnail(m_items.at(row).toLocalFile());
    }
    return image;
}
