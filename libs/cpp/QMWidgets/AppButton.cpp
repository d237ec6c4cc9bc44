#include "AppButton.h"

#include "AppMenu.h"

namespace QMWidgets
{

AppButton::AppButton(QWidget* parent)
    : QPushButton(parent)
{
    auto* menu = new AppMenu(this);
    setMenu(menu);
    connect(menu, &AppMenu::quitPressed, this, &AppButton::quitPressed);
}

} // namespace QMWidgets
