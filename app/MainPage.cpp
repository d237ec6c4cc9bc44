#include "app/MainPage.h"

#include "batch/AppSettingsDialog.h"
#include "flow/BaseNode.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "intake/Creator.h"
#include "preview/Representor.h"
#include <QMWidgets/App.h>
#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/PromoMenuBar.h>
#include <QMWidgets/ReminderType.h>
#include <QMWidgets/TabOrder.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace
{
constexpr int kReminderPeriod = 5;
} // namespace

MainPage::MainPage(QWidget* parent)
    : PromoMainPage(parent)
{
    setFixedSize(735, 795);
    setObjectName(QStringLiteral("MainPage"));

    m_optionsPanel = new NodesOptionsPanel(nullptr);
    m_creator = new Creator(m_optionsPanel, nullptr);
    m_representor = new Representor(m_optionsPanel, nullptr);
    m_flowPanel = new FlowPanel(m_optionsPanel, nullptr);
    connectPanels();

    menuBar()->setMoreAppsButtonHidden();
    m_settingsButton = new QPushButton;
    m_settingsButton->setObjectName(QStringLiteral("SettingsButton"));
    m_settingsButton->setFlat(true);
    QMWidgets::followLanguage(m_settingsButton, [this] {
        m_settingsButton->setToolTip(tr("Settings"));
        m_settingsButton->setAccessibleName(tr("Settings"));
    });
    menuBar()->addRightWidget(m_settingsButton);
    connect(m_settingsButton, &QPushButton::clicked, this, &MainPage::slotShowSettings);

    layOut();
}

void MainPage::connectPanels()
{
    connect(m_representor, &Representor::next, m_creator, &Creator::slotNext);
    connect(m_representor, &Representor::previous, m_creator, &Creator::slotPrevious);
    connect(m_representor, &Representor::gotoFirst, m_creator, &Creator::slotGotoFirst);
    connect(m_creator, &Creator::imageChanged, m_representor, &Representor::slotSetImage);
    connect(m_creator, &Creator::formatChanged, m_representor, &Representor::slotSetFormat);
    connect(m_creator, &Creator::realPreview, m_representor, &Representor::slotRealPreview);
    connect(m_flowPanel, &FlowPanel::showOptions, m_optionsPanel,
            &NodesOptionsPanel::slotShowOptions);
    connect(m_flowPanel, &FlowPanel::flowChanged, m_optionsPanel,
            &NodesOptionsPanel::slotFlowChanged);
    connect(m_flowPanel, &FlowPanel::nodeRemoved, m_optionsPanel,
            &NodesOptionsPanel::slotNodeRemoved);
    connect(m_representor, &Representor::realSizeRequired, m_optionsPanel,
            &NodesOptionsPanel::slotParametersChanged);
    connect(m_flowPanel, &FlowPanel::runBatch, m_representor, &Representor::slotRunBatchClicked);
}

void MainPage::layOut()
{
    auto* pictures = new QHBoxLayout;
    pictures->addStretch(1);
    pictures->addWidget(m_creator);
    pictures->addWidget(m_representor);
    pictures->addStretch(1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(menuBar());
    layout->addLayout(pictures);
    layout->addWidget(m_optionsPanel);
    layout->addWidget(m_flowPanel);
    QMWidgets::tabAsLaidOut(this);
}

void MainPage::slotFilesDropped(const QList<QUrl>& urls)
{
    if (!urls.isEmpty()) {
        m_creator->setFiles(urls);
    }
    // What one does next: open photos, or add an operation to them.
    const auto* const panel = urls.isEmpty() ? static_cast<QWidget*>(m_creator) : m_flowPanel;
    const auto name =
        urls.isEmpty() ? QStringLiteral("PushButton") : QStringLiteral("PushButtonAdd");
    panel->findChild<QPushButton*>(name)->setFocus(Qt::OtherFocusReason);
    show();
    QMWidgets::App* const app = QMWidgets::App::app();
    app->showHelpIfDue();
    app->scheduleReminder(kReminderPeriod, QMWidgets::TellReminder | QMWidgets::JoinReminder);
}

void MainPage::slotShowSettings()
{
    AppSettingsDialog dialog(m_settingsButton);
    dialog.exec();
}

void MainPage::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
}
