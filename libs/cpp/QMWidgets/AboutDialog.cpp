#include "AboutDialog.h"

#include "App.h"
#include "SetupPushButton.h"
#include <QMWidgets/MakerSite.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{

QHBoxLayout* centred(QWidget* widget)
{
    auto* row = new QHBoxLayout;
    row->addStretch(1);
    row->addWidget(widget);
    row->addStretch(1);
    return row;
}

} // namespace

AboutDialog::AboutDialog(QWidget* parent)
    : QDialog(parent),
      m_logoLabel(new QLabel(this)),
      m_legalBrowser(new QTextBrowser(this)),
      m_infoLabel(new QLabel(this)),
      m_legalButton(new QPushButton(tr("&Legal Notices"), this))
{
    setObjectName(QStringLiteral("AboutDialog"));
    setWindowFlags(Qt::Window | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                   Qt::CustomizeWindowHint);
    setWindowTitle(QCoreApplication::applicationName() + tr(" Info"));
    m_logoLabel->setObjectName(QStringLiteral("LogoLabel"));
    m_logoLabel->setFixedSize(290, 290);
    m_logoLabel->setFrameStyle(int(QFrame::WinPanel) | int(QFrame::Sunken));
    m_logoLabel->setLineWidth(5);
    m_logoLabel->setAutoFillBackground(true);

    auto* okButton = new QPushButton(tr("&Ok"), this);
    setupPushButton(m_legalButton);
    setupPushButton(okButton);
    okButton->setDefault(true);
    okButton->setFocus();
    connect(m_legalButton, &QPushButton::clicked, this, &AboutDialog::slotLegalNoticesClicked);
    connect(okButton, &QPushButton::clicked, this, &AboutDialog::slotOkClicked);

    m_legalBrowser->setAccessibleName(tr("Legal Notices"));
    m_legalBrowser->setReadOnly(true);
    m_legalBrowser->setOpenExternalLinks(true);
    m_legalBrowser->hide();

    const App* const app = App::app();
    m_infoLabel->setStyleSheet(QStringLiteral("background: black;"));
    m_infoLabel->setOpenExternalLinks(true);
    m_infoLabel->setFixedHeight(85);
    m_infoLabel->setText(infoText(app->buildDate(), app->isStoreBuild()));
    layOut(okButton);
}

void AboutDialog::layOut(QPushButton* okButton)
{
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(5);
    layout->addLayout(centred(m_logoLabel));
    layout->addWidget(m_infoLabel);
    layout->addWidget(m_legalBrowser);
    layout->addLayout(centred(m_legalButton));
    layout->addLayout(centred(okButton));
}

QString AboutDialog::infoText(const QDate& buildDate, bool asLink)
{
    const QString site = MakerSite::home();
    const QString lines[] = {
        QStringLiteral("%1 v%2 Build: %3")
            .arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion(),
                 buildDate.toString(QStringLiteral("dd.MM.yyyy"))),
        QStringLiteral("&copy; %1 %2")
            .arg(buildDate.toString(QStringLiteral("yyyy")), QCoreApplication::organizationName()),
        asLink ? QStringLiteral("<A HREF=\"%1\">%1</A>").arg(site) : site};
    QString text = QStringLiteral("<BODY BGCOLOR=#000000><FONT COLOR=#00A0E0 SIZE=2><CENTER>");
    for (const QString& line : lines) {
        text += line + QStringLiteral("<BR>");
    }
    return text + QStringLiteral("<IMG SRC=\":/pix/corvanelogo.png\"></CENTER>");
}

void AboutDialog::showLogo(bool on)
{
    const QSize before = size();
    m_infoLabel->setVisible(on);
    m_logoLabel->setVisible(on);
    m_legalBrowser->setVisible(!on);
    if (on) {
        m_legalButton->setText(tr("&Legal Notices"));
    } else {
        m_legalButton->setText(tr("&Hide"));
        m_legalBrowser->setHtml(
            QStringLiteral("<BODY><CENTER>%1</CENTER></BODY>").arg(App::app()->usesText()));
    }
    // So that the window does not jump.
    setFixedSize(before);
}

void AboutDialog::slotLegalNoticesClicked()
{
    showLogo(m_logoLabel->isHidden());
}

void AboutDialog::slotOkClicked()
{
    close();
    showLogo(true);
}

} // namespace QMWidgets
