#pragma once

#include <functional>
#include <QString>

class QComboBox;
class QWidget;
class Stage;

/// Opens the settings; `act` has to end the dialog.
void withSettings(Stage& stage, const std::function<void(QWidget* dialog)>& act);

/// The combo box of a dialog that holds an item; null if none does.
QComboBox* boxWith(const QWidget* dialog, const QString& item);

/// Switches renaming on and types the new name; an empty one switches it off.
void setRenaming(Stage& stage, const QWidget* dialog, const QString& newName);

/// Clicks the dialog's button of that caption.
void endDialog(Stage& stage, const QWidget* dialog, const QString& caption);
