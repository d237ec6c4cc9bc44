#pragma once

#include "BusyCursor.h"
#include "UpdateAnswer.h"
#include "UpdateService.h"

#include <optional>
#include <QDate>
#include <QObject>

namespace QMWidgets
{

class DialogGate;
class UpdateRequest;

/// Finds out whether a newer release exists and shows the user the outcome. Nothing waits for the
/// hosts: each function returns at once. One request is under way at a time, and its outcome is for
/// everyone who has asked in the meantime. The end of the program breaks it off.
///
/// Thread: the interface thread.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    /// The outcome is shown through `gate`, which has to live as long.
    explicit UpdateCheck(DialogGate* gate, QObject* parent = nullptr);

    void setService(const UpdateService& service) { m_service = service; }

    /// Asks, with a busy cursor over the main window, and shows whatever comes out.
    void runForUser();
    /// Asks if the last check is long enough ago, and shows a newer release only. A useful answer
    /// makes today the day of the last check.
    void runQuietly();
    /// Whether hosts are being asked, or an outcome is shown or about to be.
    bool isRunning() const { return m_request || m_outcome; }

    /// Whether a quiet check is to be made today. False for a last check in the future.
    static bool isDue(const QDate& last, const QDate& today);

private:
    void ask();
    void takeAnswer(const QString& answer);
    void showOutcome();
    void end(UpdateState state);
    void breakOff();

    DialogGate* m_gate;
    UpdateService m_service;
    UpdateRequest* m_request = nullptr;
    std::optional<UpdateState> m_outcome; // to be shown
    std::optional<BusyCursor> m_busyCursor;
    bool m_isForUser = false;
    bool m_isForStart = false;
};

} // namespace QMWidgets
