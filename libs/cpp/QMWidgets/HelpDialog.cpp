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
      m_viewArea(new HelpViewArea(this)),
      m_closeButton(new QPushButton(tr("&Close"), this))
{
    setObjectName(QStringLiteral("Dialog"));
    setWindowTitle(QCoreApplication::applicationName() + tr(" Introduction"));
    setupPushButton(m_closeButton);
    setupPushButton(m_neverButton);
    connect(m_closeButton, &QPushButton::clicked, this, &HelpDialog::slotReject);
    connect(m_neverButton, &QPushButton::clicked, this, &HelpDialog::slotNeverShowItAgain);

    QBoxLayout* const buttons = makeButtonRow();
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(5);
    buttons->addStretch(1);
    buttons->addWidget(m_neverButton);
    buttons->addWidget(m_closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_viewArea);
    layout->addLayout(buttons);
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
    // Not once and for all: a dialog that gets another parent loses it.
    m_closeButton->setFocus();
    QDialog::showEvent(event);
}

void HelpDialog::hideEvent(QHideEvent* event)
{
    m_viewArea->slotStopSlideShow();
    QDialog::hideEvent(event);
}

} // namespace QMWidgets
