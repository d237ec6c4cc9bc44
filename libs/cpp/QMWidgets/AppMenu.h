#pragma once

#include <QMenu>

namespace QMWidgets
{

/// The program's menu, whose entries call the application object. Needs an App.
class AppMenu : public QMenu
{
    Q_OBJECT

public:
    explicit AppMenu(QWidget* parent = nullptr);

signals:
    /// The entry that ends the program was chosen; whoever owns the menu connects it.
    void quitPressed();
};

} // namespace QMWidgets
