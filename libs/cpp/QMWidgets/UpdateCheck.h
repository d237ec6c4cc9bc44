#pragma once

#include "UpdateAnswer.h"
#include "UpdateService.h"

#include <optional>
#include <QDate>
#include <QObject>

namespace QMWidgets
{

/// Finds out whether a newer release exists and tells the user. One request is under way at a time.
///
/// Thread: the interface thread.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    explicit UpdateCheck(QObject* parent = nullptr);

    void setService(const UpdateService& service) { m_service = service; }

    /// Asks and tells whatever came out. While another check is under way, that one's outcome is
    /// told, and this returns at once.
    void runForUser();
    /// Asks if the last check is long enough ago, and tells of a newer release only.
    void runQuietly();

    /// Whether a quiet check is to be made today. False for a last check in the future.
    static bool isDue(const QDate& last, const QDate& today);

private:
    std::optional<UpdateState> ask();
    void tell(UpdateState state);
    void showNews();

    UpdateService m_service;
    bool m_isAsking = false;
    bool m_userWaits = false;
    bool m_newsWaits = false;
};

} // namespace QMWidgets
