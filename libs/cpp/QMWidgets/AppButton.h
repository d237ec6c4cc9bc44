#pragma once

#include <QPushButton>

namespace QMWidgets
{

/// The button that opens the program's menu, which it owns. Needs an App.
class AppButton : public QPushButton
{
    Q_OBJECT

public:
    explicit AppButton(QWidget* parent = nullptr);

signals:
    /// The menu's entry that ends the program was chosen.
    void quitPressed();
};

} // namespace QMWidgets
