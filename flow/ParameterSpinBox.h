#pragma once

#include <QSpinBox>

/// A spin box that emits its value only when the value changes. Qt's own emits it on Return in any
/// case, and the whole flow would run once more for the same picture.
class ParameterSpinBox : public QSpinBox
{
public:
    explicit ParameterSpinBox(QWidget* parent);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};
