#pragma once

#include <functional>
#include <QString>

class QComboBox;
class QWidget;
class Stage;

/// Opens the settings; `act` has to end the dialog.
void withSettings(Stage& stage, const std::function<void(QWidget* dialog)>& act);

/// The combo box of a dialog that holds an item, told in English; null if none does.
QComboBox* boxWith(const QWidget* dialog, const QString& item);

/// Switches renaming on and types the new name; an empty one switches it off.
void setRenaming(Stage& stage, const QWidget* dialog, const QString& newName);
