#pragma once

#include <QMWidgets/Label.h>

/// The thumbnail on a node's tab: the picture as it stands after that node.
class TabLabel : public QMWidgets::Label
{
    Q_OBJECT

public:
    explicit TabLabel(QWidget* parent);
};
