#pragma once

#include <functional>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>

class Complaints;

/// Waits for a menu or a dialog that holds the program up while it is open, and does there what is
/// to be done. Lives on the stack around the click that opens it.
class Attendant : public QObject
{
    Q_OBJECT

public:
    using Find = std::function<QWidget*()>;
    using Act = std::function<void(QWidget*)>;

    /// `find` is asked again and again until it gives a widget that is shown.
    Attendant(const QString& what, Find find, Act act, Complaints& complaints);
    /// Complains if the widget never came.
    ~Attendant() override;

private:
    void look();
    void giveUp();

    QString m_what;
    Find m_find;
    Act m_act;
    Complaints& m_complaints;
    QPointer<QWidget> m_found;
    bool m_acted = false;
    QTimer m_lookTimer;
    QTimer m_patience;
};
