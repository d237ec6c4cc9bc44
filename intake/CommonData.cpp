#include "intake/CommonData.h"

#include "intake/ItemsModel.h"

CommonData* CommonData::instance()
{
    static auto* const data = new CommonData;
    return data;
}

CommonData::CommonData()
    : m_model(new ItemsModel(this))
{
}

QList<QUrl> CommonData::items() const
{
    return m_model->items();
}

QString CommonData::itemName(int index) const
{
    return m_model->itemName(index);
}
