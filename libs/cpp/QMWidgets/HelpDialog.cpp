#include "HelpDialog.h"

#include "App.h"
#include "ButtonRow.h"
#include "HelpViewArea.h"
#include "SetupPushButton.h"

#include <QBoxLayout>
#include <QPushButton>

namespace QMWidgets
{

namespace
{
const QString kNeverShowItAgain = QStringLiteral("NeverShowItAgain");
} // namespace

HelpDialog::HelpDialog(QWidget* parent)
    : QDialog(parent),
      m_neverButton(new QPushButton(tr("&Never show on start"), this)),
      m_viewArea(new HelpViewArea(this))
{
    setObjectName(QStringLiteral("Dialog"));
    setWindowTitle(QCoreApplication::applicationName() + tr(" Introduction"));
    auto* closeButton = new QPushButton(tr("&Close"), this);
    setupPushButton(closeButton);
    setupPushButton(m_neverButton);
    connect(closeButton, &QPushButton::clicked, this, &HelpDialog::slotReject);
    connect(m_neverButton, &QPushButton::clicked, this, &HelpDialog::slotNeverShowItAgain);

    QBoxLayout* const buttons = makeButtonRow();
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(5);
    buttons->addStretch(1);
    buttons->addWidget(m_neverButton);
    buttons->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_viewArea);
    layout->addLayout(buttons);
    closeButton->setFocus();
}

void HelpDialog::addSlide(const QString& path)
{
    m_viewArea->addSlide(path);
}

bool HelpDialog::isNeverShown()
{
    return App::app()->settingsValue(kNeverShowItAgain, false).toBool();
}

void HelpDialog::slotReject()
{
    reject();
}

void HelpDialog::slotNeverShowItAgain()
{
    App::app()->setSettingsValue(kNeverShowItAgain, true);
    accept();
}

void HelpDialog::showEvent(QShowEvent* event)
{
    m_neverButton->setVisible(!isNeverShown());
    m_viewArea->slotStartSlideShow();
    QDialog::showEvent(event);
}

void HelpDialog::hideEvent(QHideEvent* event)
{
    m_viewArea->slotStopSlideShow();
    QDialog::hideEvent(event);
}

} // namespace QMWidgets
