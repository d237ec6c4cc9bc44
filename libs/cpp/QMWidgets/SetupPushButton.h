#pragma once

class QPushButton;

namespace QMWidgets
{

/// Makes a button look like all buttons of the program's dialogs: the object name the style sheet
/// selects on, flat, and high enough for it.
void setupPushButton(QPushButton* button);

} // namespace QMWidgets
