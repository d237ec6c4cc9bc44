#include "SocialRows.h"

#include "ButtonRow.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDialog>
#include <QPushButton>

namespace QMWidgets
{

namespace
{

constexpr int kSpacing = 7;

void addCentred(QBoxLayout* row, QWidget* widget)
{
    row->setSpacing(kSpacing);
    row->addStretch(1);
    row->addWidget(widget);
    row->addStretch(1);
}

} // namespace

void addSocialRows(QDialog* dialog, QVBoxLayout* layout, QWidget* widget)
{
    auto* closeButton =
        new QPushButton(QCoreApplication::translate("QMWidgets::SocialRows", "&Close"), dialog);
    closeButton->setObjectName(QStringLiteral("PushButton"));
    closeButton->setMinimumHeight(32);
    // Enter closes; else it would open the first of the pages.
    closeButton->setDefault(true);
    closeButton->setFocus();
    QObject::connect(closeButton, &QPushButton::clicked, dialog, &QDialog::accept);

    auto* middle = new QHBoxLayout;
    middle->setContentsMargins(15, 15, 15, 15);
    addCentred(middle, widget);
    QBoxLayout* const buttons = makeButtonRow();
    buttons->setContentsMargins(10, 10, 10, 10);
    addCentred(buttons, closeButton);
    layout->addLayout(middle);
    layout->addLayout(buttons);
}

} // namespace QMWidgets
