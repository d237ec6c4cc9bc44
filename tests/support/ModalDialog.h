#pragma once

#include <functional>
#include <initializer_list>
#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QPushButton>
#include <QTimer>

/// Does something with each of the modal dialogs that come one after the other out of `call`, from
/// inside their exec(), and returns what `call` returns. Each act should end its dialog; one that
/// is left open is closed.
template <class Call>
auto withModalDialogs(const Call& call,
                      std::initializer_list<std::function<void(QDialog*)>> actsInOrder)
{
    const auto* act = actsInOrder.begin();
    QPointer<QDialog> last;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog || dialog == last || act == actsInOrder.end()) {
            return;
        }
        last = dialog;
        (*act++)(dialog);
        if (last && last->isVisible()) {
            last->close();
        }
    });
    timer.start(0);
    return call();
}

template <class Call, class Act> auto withModalDialog(const Call& call, const Act& act)
{
    return withModalDialogs(call, {act});
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
