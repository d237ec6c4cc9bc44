#include "ReminderDialog.h"

#include "App.h"
#include "ButtonRow.h"
#include "SetupPushButton.h"
#include "TabOrder.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace QMWidgets
{

namespace
{

QString headingTag()
{
    return App::isSmallScreen() ? QStringLiteral("H4") : QStringLiteral("H3");
}

} // namespace

ReminderDialog::ReminderDialog(QWidget* parent)
    : QDialog(parent),
      m_textLabel(new QLabel(this)),
      m_nowButton(new QPushButton(this)),
      m_laterButton(new QPushButton(tr("&Maybe Later"), this)),
      m_laterButton2(new QPushButton(tr("&Maybe Later"), this)),
      m_neverButton(new QPushButton(tr("&Never Ask Me Again"), this)),
      m_extraLayout(new QHBoxLayout),
      m_logoLabel(new QLabel(this))
{
    const QString name = QCoreApplication::applicationName();
    setWindowTitle(tr("Help Spread the Word about \"") + name + QLatin1Char('"'));
    setObjectName(QStringLiteral("Dialog"));
    m_textLabel->setMinimumHeight(90);
    m_textLabel->setText(QStringLiteral("<CENTER><%1>").arg(headingTag()) + tr("If you like ") +
                         name + tr("-App,"));
    m_logoLabel->setObjectName(QStringLiteral("LogoLabel"));
    m_logoLabel->setFixedSize(90, 90);
    m_extraLayout->setContentsMargins(0, 0, 0, 0);
    m_extraLayout->setSpacing(0);
    setUpButtons();

    QBoxLayout* const buttons = makeButtonRow();
    buttons->setContentsMargins(0, 0, 0, 0);
    buttons->setSpacing(5);
    for (QPushButton* const button : {m_laterButton, m_neverButton, m_laterButton2, m_nowButton}) {
        buttons->addWidget(button);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(1);
    layout->addLayout(makeUpperRow());
    layout->addLayout(m_extraLayout);
    layout->addLayout(buttons);
    tabAsLaidOut(this);
}

void ReminderDialog::setUpButtons()
{
    for (QPushButton* const button : {m_nowButton, m_laterButton, m_laterButton2, m_neverButton}) {
        setupPushButton(button);
    }
    connect(m_nowButton, &QPushButton::clicked, this, &ReminderDialog::slotNow);
    connect(m_laterButton, &QPushButton::clicked, this, &ReminderDialog::slotMaybeLater);
    connect(m_laterButton2, &QPushButton::clicked, this, &ReminderDialog::slotMaybeLater);
    connect(m_neverButton, &QPushButton::clicked, this, &ReminderDialog::slotNeverAskMeAgain);
}

QBoxLayout* ReminderDialog::makeUpperRow()
{
    auto* row = makeButtonRow();
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(5);
    if (App::isSmallScreen()) {
        auto* logo = new QHBoxLayout;
        logo->addStretch(0);
        logo->addWidget(m_logoLabel);
        logo->addStretch(0);
        row->addLayout(logo);
    } else {
        row->addWidget(m_logoLabel);
    }
    row->addWidget(m_textLabel);
    return row;
}

void ReminderDialog::finishText(const QString& text)
{
    m_textLabel->setText(m_textLabel->text() + text +
                         QStringLiteral("</%1></CENTER>").arg(headingTag()));
}

void ReminderDialog::showInstead(QWidget* widget)
{
    m_laterButton->hide();
    m_nowButton->hide();
    m_extraLayout->addStretch(1);
    m_extraLayout->addWidget(widget);
    m_extraLayout->addStretch(1);
    // So that Enter neither opens a page nor ends the reminders.
    m_laterButton2->setDefault(true);
    m_laterButton2->setFocus();
}

void ReminderDialog::answerWith(Answer answer)
{
    m_answer = answer;
    accept();
}

void ReminderDialog::slotNow()
{
    answerWith(Now);
}

void ReminderDialog::slotMaybeLater()
{
    answerWith(MaybeLater);
}

void ReminderDialog::slotNeverAskMeAgain()
{
    answerWith(NeverAskMeAgain);
}

} // namespace QMWidgets
