#pragma once

#include <QDialog>

namespace QMWidgets
{

/// The dialog that leads the user to the maker's social pages. Needs an App.
class JoinDialog : public QDialog
{
    Q_OBJECT

public:
    explicit JoinDialog(QWidget* parent);
};

} // namespace QMWidgets
