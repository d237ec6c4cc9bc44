#pragma once

#include <QDialog>

namespace QMWidgets
{

/// The dialog that asks the user to tell others of the program. Needs an App.
class TellDialog : public QDialog
{
    Q_OBJECT

public:
    explicit TellDialog(QWidget* parent);
};

} // namespace QMWidgets
