#pragma once

#include <functional>

class QWidget;

namespace QMWidgets
{

/// Calls `setTexts` at once and again whenever the language of the interface changes, as long as
/// `widget` lives. For widgets that stand before the language is known.
/// Thread: the interface thread.
void followLanguage(QWidget* widget, std::function<void()> setTexts);

} // namespace QMWidgets
