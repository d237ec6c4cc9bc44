#pragma once

#include <QString>

class QPushButton;
class QVBoxLayout;
class QWidget;

namespace QMWidgets
{

/// The four big picture buttons of the share and join widgets, one below the other.
struct SocialColumn {
    QVBoxLayout* layout = nullptr;
    QPushButton* faceBook = nullptr;
    QPushButton* twitter = nullptr;
    QPushButton* vKontakte = nullptr;
    QPushButton* email = nullptr;
};

/// Makes the buttons as children of `parent`; the caller puts the layout into its own or into the
/// parent. The object names, by which the style sheet brings the pictures, end with `kind` and
/// "Button". A network whose address the application lacks has its button hidden. Needs an App.
SocialColumn makeSocialColumn(const QString& kind, QWidget* parent);

} // namespace QMWidgets
