#pragma once

class QBoxLayout;

namespace QMWidgets
{

/// An empty layout for the buttons of a dialog: side by side, or one below the other where the
/// screen is small. The caller owns it until it is put into another layout.
QBoxLayout* makeButtonRow();

} // namespace QMWidgets
