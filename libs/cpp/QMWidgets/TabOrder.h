#pragma once

class QWidget;

namespace QMWidgets
{

/// Lets Tab go through all that lies in a widget in the order of its layouts, which is the order in
/// which the eye finds it, whatever the order of construction. Children that lie in no layout, but
/// below one, come first. To be called once the widget is laid out, and again when that changes.
void tabAsLaidOut(QWidget* widget);

} // namespace QMWidgets
