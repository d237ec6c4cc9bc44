#include "AppUpdateDialog.h"

#include "App.h"
#include "SetupPushButton.h"
#include "TabOrder.h"
#include "UpdateSettings.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace QMWidgets
{

AppUpdateDialog::AppUpdateDialog(bool hasNewerVersion, QWidget* parent)
    : QDialog(parent),
      m_checkBox(new QCheckBox(tr("Check for updates on start"), this)),
      m_textLabel(new QLabel(this)),
      m_pictureLabel(new QLabel(this))
{
    const QString name = QCoreApplication::applicationName();
    setObjectName(QStringLiteral("UpdateDialog"));
    setWindowTitle(name + tr(" Updates Notification"));
    m_textLabel->setText(
        hasNewerVersion
            ? tr("<CENTER><H2>The newer version of ") + name +
                  tr(" is available.<br>Go to the updates web page?</H2></CENTER>")
            : tr("<CENTER><H2>You are using the latest version available.<br>Go to the updates web "
                 "page anyway?</H2></CENTER>"));
    // By way of an icon, which takes the picture's twin on a dense screen.
    const QIcon picture(hasNewerVersion ? QStringLiteral(":/update_available.png")
                                        : QStringLiteral(":/update_not_available.png"));
    m_pictureLabel->setPixmap(picture.pixmap(128, 128));
    m_pictureLabel->setAlignment(Qt::AlignHCenter);

    auto* const yes = new QPushButton(tr("Yes"), this);
    auto* const no = new QPushButton(tr("No"), this);
    setupPushButton(yes);
    setupPushButton(no);
    m_checkBox->setChecked(UpdateSettings::isCheckedAtStart());
    connect(m_checkBox, &QCheckBox::toggled, this, &AppUpdateDialog::slotSetChecked);
    connect(yes, &QPushButton::clicked, this, &AppUpdateDialog::slotUpdate);
    connect(no, &QPushButton::clicked, this, &AppUpdateDialog::slotCancel);
    // The dialog may come up by itself: a key that was meant for the program opens no web page.
    no->setDefault(true);
    no->setFocus();

    auto* const buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(3);
    buttons->addWidget(yes);
    buttons->addWidget(no);
    auto* const options = new QHBoxLayout;
    options->setContentsMargins(2, 2, 2, 2);
    options->setSpacing(1);
    options->addWidget(m_checkBox);
    options->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_pictureLabel);
    layout->addWidget(m_textLabel);
    layout->addLayout(buttons);
    layout->addLayout(options);
    tabAsLaidOut(this);
}

void AppUpdateDialog::slotCancel()
{
    reject();
}

void AppUpdateDialog::slotUpdate()
{
    App::app()->slotSupportPage();
    reject();
}

void AppUpdateDialog::slotSetChecked(bool on)
{
    UpdateSettings::setCheckedAtStart(on);
}

} // namespace QMWidgets
