#pragma once

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

/// Does something with the next modal dialog, from inside its exec(), and returns what exec's
/// caller returns. `act` should end the dialog; one that it leaves open is closed.
template <class Call, class Act> auto withModalDialog(const Call& call, const Act& act)
{
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&timer, &act] {
        if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
            timer.stop();
            const QPointer<QDialog> guard(dialog);
            act(dialog);
            if (guard && guard->isVisible()) {
                guard->close();
            }
        }
    });
    timer.start(0);
    return call();
}

/// The button of that text, or null.
inline QPushButton* buttonOf(const QWidget* dialog, const QString& text)
{
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
        if (button->text() == text) {
            return button;
        }
    }
    return nullptr;
}
