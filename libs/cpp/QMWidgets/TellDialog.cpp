#include "TellDialog.h"

#include "App.h"
#include "SocialRows.h"
#include "TellWidget.h"

#include <QLabel>
#include <QVBoxLayout>

namespace QMWidgets
{

TellDialog::TellDialog(QWidget* parent)
    : QDialog(parent)
{
    setObjectName(QStringLiteral("Dialog"));
    const QString name = QCoreApplication::applicationName();
    setWindowTitle(tr("Share ") + name);
    const QString tag = App::isSmallScreen() ? QStringLiteral("H4") : QStringLiteral("H1");
    auto* label = new QLabel(this);
    label->setText(QStringLiteral("<CENTER><%1>").arg(tag) + tr("If you like<br>\"") + name +
                   QStringLiteral("\",") + tr("<br>please share it with your friends.<br>Thanks!") +
                   QStringLiteral("</%1></CENTER>").arg(tag));

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(7);
    layout->addWidget(label);
    addSocialRows(this, layout, new TellWidget(this));
}

} // namespace QMWidgets
