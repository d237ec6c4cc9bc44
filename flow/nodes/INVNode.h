#pragma once

#include "flow/nodes/PlainNode.h"

/// Each colour channel becomes 255 minus its value.
class INVNode : public PlainNode
{
    Q_OBJECT

public:
    INVNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
};
