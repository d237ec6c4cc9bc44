#pragma once

class QDialog;
class QVBoxLayout;
class QWidget;

namespace QMWidgets
{

/// Adds what the share and join dialogs have in common to a dialog's layout: a row with `widget` in
/// its middle, and a row with a button that closes the dialog.
void addSocialRows(QDialog* dialog, QVBoxLayout* layout, QWidget* widget);

} // namespace QMWidgets
