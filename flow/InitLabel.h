#pragma once

#include <QMWidgets/Label.h>

namespace QMWidgets
{
class MovieLabel;
}

/// What the options panel shows while there is no operation: a picture of the first steps, words in
/// the user's language in the room that the picture leaves for them, and a moving arrow that points
/// down at the button that adds an operation. Where the interface is read from the right, that
/// button lies at the right, and picture and arrow are those for such readers.
class InitLabel : public QMWidgets::Label
{
    Q_OBJECT

public:
    explicit InitLabel(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void showPictures();
    void showWords();
    /// A place in the picture, in pixels of this label.
    QRect onLabel(const QRect& place) const;

    QLabel* m_title;
    QLabel* m_hint;
    QMWidgets::MovieLabel* m_arrow;
};
