#pragma once

class QWidget;

namespace QMWidgets
{

/// The parent of a dialog that opens by itself: the active window, or null if there is none. A
/// window that closes as soon as it has opened can stay the active one for Qt. Then its parent
/// stands in for it, or the main window if it has none.
QWidget* dialogParent();

} // namespace QMWidgets
