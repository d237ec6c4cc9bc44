#include "JoinDialog.h"

#include "JoinWidget.h"
#include "SocialRows.h"

#include <QVBoxLayout>

namespace QMWidgets
{

JoinDialog::JoinDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("Dialog"));
    setWindowTitle(tr("Join us"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(7);
    addSocialRows(this, layout, new JoinWidget(this));
}

} // namespace QMWidgets
