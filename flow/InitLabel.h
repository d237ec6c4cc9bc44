#pragma once

#include <QMWidgets/Label.h>

namespace QMWidgets
{
class MovieLabel;
}

/// What the options panel shows while there is no operation: a picture of the first steps, and a
/// moving arrow that points down at the button that adds one. Where the interface is read from the
/// right, that button lies at the right, and picture and arrow are those for such readers.
class InitLabel : public QMWidgets::Label
{
    Q_OBJECT

public:
    explicit InitLabel(QWidget* parent);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showPictures();

    QMWidgets::MovieLabel* m_arrow;
};
