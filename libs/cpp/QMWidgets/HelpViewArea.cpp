#include "HelpViewArea.h"

#include "App.h"
#include "HelpDisplay.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalMapper>
#include <QTimer>
#include <QVBoxLayout>

namespace QMWidgets
{

namespace
{
constexpr int kSlideTime = 4000; // milliseconds
constexpr int kButtonSize = 18;
} // namespace

HelpViewArea::HelpViewArea(QWidget* parent)
    : QFrame(parent),
      m_timer(new QTimer(this)),
      m_display(new HelpDisplay(this)),
      m_buttonsLayout(new QHBoxLayout),
      m_buttonGroup(new QButtonGroup(this)),
      m_mapper(new QSignalMapper(this))
{
    setObjectName(QStringLiteral("HelpViewArea"));
    m_timer->setInterval(kSlideTime);
    m_display->setMinimumSize(App::isSmallScreen() ? QSize(280, 220) : QSize(400, 300));
    m_buttonsLayout->setContentsMargins(0, 0, 0, 0);
    m_buttonsLayout->setSpacing(3);
    m_buttonGroup->setExclusive(true);
    connect(m_timer, &QTimer::timeout, this, &HelpViewArea::slotShowNextSlide);
    connect(m_mapper, &QSignalMapper::mappedString, this, &HelpViewArea::slotShowSlide);

    auto* numbers = new QHBoxLayout;
    numbers->addStretch(1);
    numbers->addLayout(m_buttonsLayout);
    numbers->addStretch(1);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(6, 6, 6, 6);
    layout->setSpacing(6);
    layout->addWidget(m_display);
    layout->addLayout(numbers);
}

void HelpViewArea::addSlide(const QString& path)
{
    // Deliberate: counted over the whole run, so that no number comes twice.
    static int count = 0;
    ++count;
    auto* button = new QPushButton(QString::number(count), this);
    button->setFlat(true);
    button->setFixedSize(kButtonSize, kButtonSize);
    button->setObjectName(QStringLiteral("HelpSlideButton"));
    button->setCheckable(true);
    m_buttonGroup->addButton(button);
    m_buttonsLayout->addWidget(button);
    // The button that is left tells it too, before the one that is checked: the last one counts.
    connect(button, &QPushButton::toggled, m_mapper, qOverload<>(&QSignalMapper::map));
    connect(button, &QPushButton::clicked, this, &HelpViewArea::slotStopSlideShow);
    m_mapper->setMapping(button, path);
}

void HelpViewArea::slotButtonClicked()
{
    slotStopSlideShow();
}

void HelpViewArea::slotShowSlide(const QString& path)
{
    m_display->setSlide(path);
    m_display->update();
}

void HelpViewArea::slotShowNextSlide()
{
    const QList<QAbstractButton*> buttons = m_buttonGroup->buttons();
    if (!buttons.isEmpty()) {
        const int shown = buttons.indexOf(m_buttonGroup->checkedButton());
        buttons.at((shown + 1) % buttons.size())->setChecked(true);
    }
}

void HelpViewArea::slotStartSlideShow()
{
    if (!m_buttonGroup->checkedButton()) {
        slotShowNextSlide();
    }
    m_timer->start();
}

void HelpViewArea::slotStopSlideShow()
{
    m_timer->stop();
}

} // namespace QMWidgets
