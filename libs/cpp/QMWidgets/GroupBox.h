#pragma once

#include <QGroupBox>

namespace QMWidgets
{

/// A group box that has its check before its title, whichever way it is read. Under a style sheet
/// the toolkit leaves the check at the left.
class GroupBox : public QGroupBox
{
    Q_OBJECT

public:
    using QGroupBox::QGroupBox;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace QMWidgets
