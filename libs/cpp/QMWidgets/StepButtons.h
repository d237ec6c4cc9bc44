#pragma once

class QPushButton;
class QWidget;

namespace QMWidgets
{

/// The arrows that step through the photos, wherever a photo is shown: picture-only buttons, named
/// for the style sheet and for screen readers.
QPushButton* makeNextButton(QWidget* parent);
QPushButton* makePreviousButton(QWidget* parent);

} // namespace QMWidgets
