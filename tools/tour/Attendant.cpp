#include "Attendant.h"

#include "Complaints.h"

#include <QApplication>
#include <QTest>

namespace
{
constexpr int kLookInterval = 20;    // milliseconds
constexpr int kPatience = 5 * 60000; // the longest that a dialog may stay open
} // namespace

Attendant::Attendant(const QString& what, Find find, Act act, Complaints& complaints)
    : m_what(what),
      m_find(std::move(find)),
      m_act(std::move(act)),
      m_complaints(complaints)
{
    connect(&m_lookTimer, &QTimer::timeout, this, &Attendant::look);
    connect(&m_patience, &QTimer::timeout, this, &Attendant::giveUp);
    m_lookTimer.start(kLookInterval);
    m_patience.start(kPatience);
}

Attendant::~Attendant()
{
    if (!m_acted) {
        m_complaints.add(m_what + QStringLiteral(" did not open"));
    }
}

void Attendant::look()
{
    QWidget* const found = m_find();
    if (!found || !found->isVisible()) {
        return;
    }
    m_lookTimer.stop();
    m_found = found;
    m_acted = true;
    static_cast<void>(QTest::qWaitForWindowExposed(found));
    m_act(found);
}

void Attendant::giveUp()
{
    // Whatever is still open would hold the tour up for ever.
    m_complaints.add(m_what + QStringLiteral(" stayed open"));
    while (QWidget* const popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    if (QWidget* const dialog = QApplication::activeModalWidget()) {
        dialog->close();
    }
}
