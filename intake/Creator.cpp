#include "intake/Creator.h"

#include "flow/NodesOptionsPanel.h"
#include "intake/CreatorDropArea.h"
#include "intake/IconWidget.h"
#include <QMWidgets/FollowLanguage.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

Creator::Creator(NodesOptionsPanel* panel, QWidget* parent)
    : QWidget(parent),
      m_dropArea(new CreatorDropArea(panel, this)),
      m_iconWidget(new IconWidget(this)),
      m_optionsPanel(panel)
{
    setAcceptDrops(true);
    setFixedWidth(360);

    connect(m_dropArea, &CreatorDropArea::updateItems, m_iconWidget, &IconWidget::slotUpdateItems);
    connect(m_dropArea, &CreatorDropArea::indexChanged, m_iconWidget,
            &IconWidget::slotSetCurrentIndex);
    connect(m_dropArea, &CreatorDropArea::dropped, this, &Creator::slotDropped);
    connect(m_iconWidget, &IconWidget::itemClicked, m_dropArea, &CreatorDropArea::slotItemClicked);
    connect(m_optionsPanel, &NodesOptionsPanel::imageChanged, this, &Creator::imageChanged);
    connect(m_optionsPanel, &NodesOptionsPanel::realPreview, this, &Creator::realPreview);

    m_iconWidget->hide();
    auto* modeButton = new QPushButton(this);
    modeButton->setObjectName(QStringLiteral("IconViewButton"));
    QMWidgets::followLanguage(
        modeButton, [modeButton] { modeButton->setAccessibleName(tr("Show one photo")); });
    modeButton->setFlat(true);
    modeButton->setCheckable(true);
    modeButton->setChecked(true);
    connect(modeButton, &QPushButton::clicked, this, &Creator::slotShowModeChanged);

    auto* heading = new QHBoxLayout;
    heading->setContentsMargins(0, 0, 0, 0);
    heading->setSpacing(0);
    heading->addWidget(new QLabel(QStringLiteral("<H2><CENTER>Original</CENTER></H2>"), this));
    heading->addWidget(modeButton);
    auto* layout = new QVBoxLayout(this);
    // The square is as wide as the panel: a margin at its sides would cut it off.
    layout->setContentsMargins(0, 3, 0, 3);
    layout->setSpacing(0);
    layout->addLayout(heading);
    layout->addWidget(m_dropArea);
    layout->addWidget(m_iconWidget);
    layout->addStretch(1);
}

void Creator::setFiles(const QList<QUrl>& urls)
{
    m_dropArea->setFiles(urls);
}

void Creator::slotDropped(bool)
{
    QImage image = m_dropArea->takePhoto();
    image.setDevicePixelRatio(1.0);
    m_optionsPanel->setImage(std::move(image));
    emit realPreview();
}

void Creator::slotShowModeChanged(bool mode)
{
    m_dropArea->setVisible(mode);
    m_iconWidget->setVisible(!mode);
}

void Creator::slotNext()
{
    m_dropArea->slotNext();
}

void Creator::slotPrevious()
{
    m_dropArea->slotPreviuos();
}

void Creator::slotGotoFirst()
{
    m_dropArea->slotGotoFirst();
}
