#include "intake/CreatorDropArea.h"

#include "intake/BaseNameOf.h"
#include "intake/CommonData.h"
#include <QMWidgets/DropVeil.h>
#include <QMWidgets/FileDialog.h>
#include <QMWidgets/FocusRing.h>
#include <QMWidgets/FollowLanguage.h>
#include <QMWidgets/RepeatGate.h>
#include <QMWidgets/StepButtons.h>

#include <QDropEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QKeyEvent>
#include <QPixmap>
#include <QPushButton>
#include <QVBoxLayout>

CreatorDropArea::CreatorDropArea(NodesOptionsPanel* panel, QWidget* parent)
    : QMWidgets::Label(parent),
      m_optionsPanel(panel),
      m_nextButton(QMWidgets::makeNextButton(this)),
      m_previousButton(QMWidgets::makePreviousButton(this)),
      m_counterLabel(new QLabel(this)),
      m_openButton(new QPushButton(QIcon(QStringLiteral(":/openfiles.png")), QString(), this)),
      m_dropVeil(new QMWidgets::DropVeil(this)),
      m_repeatGate(new QMWidgets::RepeatGate(this))
{
    setFixedSize(360, 360);
    setAcceptDrops(true);
    setPixmap(QPixmap(QStringLiteral(":/droparea.png")));
    setObjectName(QStringLiteral("DropArea"));
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    QMWidgets::followLanguage(this, [this] {
        m_openButton->setText(tr("Click to open the photos"));
        if (m_urls.isEmpty()) {
            setText(tr("<H2>Drop the photos here</H2>"));
        }
    });

    m_openButton->setObjectName(QStringLiteral("PushButton"));
    m_openButton->setFixedHeight(32);
    setControlsVisible(false);

    connect(m_openButton, &QPushButton::clicked, this, &CreatorDropArea::slotOpenClicked);
    connect(m_nextButton, &QPushButton::clicked, this, &CreatorDropArea::slotNext);
    connect(m_previousButton, &QPushButton::clicked, this, &CreatorDropArea::slotPreviuos);

    auto* column = new QVBoxLayout;
    column->addStretch(1);
    column->addWidget(m_counterLabel);
    column->addWidget(m_openButton);
    auto* row = new QHBoxLayout(this);
    row->addWidget(m_previousButton);
    row->addStretch(1);
    row->addLayout(column);
    row->addStretch(1);
    row->addWidget(m_nextButton);
}

void CreatorDropArea::setFiles(const QList<QUrl>& urls)
{
    if (urls.isEmpty()) {
        return;
    }
    m_urls = urls;
    m_currentIndex = 0;
    m_currentFile = m_urls.first().toLocalFile();
    m_openButton->hide();
    setFocusPolicy(Qt::TabFocus);
    m_photo = loadPixmap();
    setText(QString());
    emit dropped(true);
    updateCounter();
    emit updateItems(m_urls);
}

QImage CreatorDropArea::takePhoto()
{
    QImage photo = m_photo ? std::move(*m_photo) : QImage(m_currentFile);
    m_photo.reset();
    return photo;
}

void CreatorDropArea::slotStateChanged(const QString&)
{
    loadPixmap();
}

void CreatorDropArea::slotNext()
{
    stepTo(m_currentIndex + 1 < m_urls.size() ? m_currentIndex + 1 : 0);
}

void CreatorDropArea::slotPreviuos()
{
    stepTo(m_currentIndex > 0 ? m_currentIndex - 1 : m_urls.size() - 1);
}

void CreatorDropArea::slotGotoFirst()
{
    if (m_urls.isEmpty()) {
        return;
    }
    goTo(0);
    emit dropped(true);
    emit indexChanged(0);
}

void CreatorDropArea::slotOpenClicked()
{
    const QStringList paths = QMWidgets::FileDialog::getOpenFileNames(
        this, tr("Open the photos"), QString(), QString(), nullptr, QFileDialog::Options());
    QList<QUrl> urls;
    for (const QString& path : paths) {
        urls.append(QUrl::fromLocalFile(path));
    }
    setFiles(urls);
}

void CreatorDropArea::slotItemClicked(int index)
{
    if (index < 0 || index >= m_urls.size()) {
        return;
    }
    goTo(index);
    emit dropped(true);
}

void CreatorDropArea::stepTo(int index)
{
    if (m_urls.isEmpty()) {
        return;
    }
    // One run of the flow for each step: a step that comes as a plain call while the strip is shown
    // moves the strip's current row, and that row asks for the run.
    const bool runsFlow = sender() != nullptr || isVisible();
    goTo(index);
    if (runsFlow) {
        emit dropped(true);
    } else {
        m_photo.reset();
    }
    emit indexChanged(m_currentIndex);
}

void CreatorDropArea::goTo(int index)
{
    m_currentIndex = index;
    m_currentFile = m_urls.at(index).toLocalFile();
    updateCounter();
    m_photo = loadPixmap();
}

/// Gives what it has read: nothing behind the strip, where nobody sees it.
std::optional<QImage> CreatorDropArea::loadPixmap()
{
    m_isPixmapOld = isHidden();
    if (m_isPixmapOld) {
        return std::nullopt;
    }
    QImage photo(m_currentFile);
    // Twice the widget's size stays sharp on dense screens.
    setPixmap(QPixmap::fromImage(photo).scaled(size() * 2, Qt::KeepAspectRatio,
                                               Qt::SmoothTransformation));
    return photo;
}

void CreatorDropArea::updateCounter()
{
    CommonData* const shared = CommonData::instance();
    shared->setCount(m_urls.size());
    shared->setCurrentIndex(m_currentIndex);
    shared->setCurrentName(baseNameOf(QFileInfo(m_urls.at(m_currentIndex).toLocalFile())));
    setAccessibleName(shared->currentName());
    m_counterLabel->setText(QStringLiteral("<CENTER><H1>%1 of %2</H1></CENTER>")
                                .arg(m_currentIndex + 1)
                                .arg(m_urls.size()));
}

void CreatorDropArea::setControlsVisible(bool visible)
{
    m_nextButton->setVisible(visible);
    m_previousButton->setVisible(visible);
    m_counterLabel->setVisible(visible);
}

void CreatorDropArea::showEvent(QShowEvent* event)
{
    if (m_isPixmapOld) {
        loadPixmap(); // the flow has the photo already
    }
    Label::showEvent(event);
}

void CreatorDropArea::enterEvent(QEvent* event)
{
    if (m_urls.size() > 1) {
        setControlsVisible(true);
    }
    Label::enterEvent(event);
}

void CreatorDropArea::leaveEvent(QEvent* event)
{
    setControlsVisible(false);
    Label::leaveEvent(event);
}

void CreatorDropArea::dragEnterEvent(QDragEnterEvent* event)
{
    m_dropVeil->enter(event);
}

void CreatorDropArea::dragLeaveEvent(QDragLeaveEvent* event)
{
    m_dropVeil->leave();
    Label::dragLeaveEvent(event);
}

void CreatorDropArea::dropEvent(QDropEvent* event)
{
    setFiles(m_dropVeil->take(event));
    Label::dropEvent(event);
}

void CreatorDropArea::keyPressEvent(QKeyEvent* event)
{
    m_repeatGate->pass(event, [this, event] { handleKey(event); });
}

void CreatorDropArea::handleKey(QKeyEvent* event)
{
    // The buttons change sides where one reads from the right.
    const Qt::Key forward = isRightToLeft() ? Qt::Key_Left : Qt::Key_Right;
    switch (event->key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
        if (event->key() == forward) {
            slotNext();
        } else {
            slotPreviuos();
        }
        break;
    case Qt::Key_Home:
        slotGotoFirst();
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        slotOpenClicked();
        break;
    default:
        Label::keyPressEvent(event);
    }
}

void CreatorDropArea::paintEvent(QPaintEvent* event)
{
    Label::paintEvent(event);
    QMWidgets::drawFocusRing(this);
}
