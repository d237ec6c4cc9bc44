#pragma once

class QWidget;

namespace QMWidgets
{

/// The window that a dialog which opens by itself belongs to: the active one, or null. While one
/// that was just closed still counts as active, it is the window that one belonged to.
QWidget* dialogParent();

} // namespace QMWidgets
