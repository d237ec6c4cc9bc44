#pragma once

#include "flow/nodes/PlainNode.h"

/// Each channel becomes the unweighted mean of the three.
class GRSNode : public PlainNode
{
    Q_OBJECT

public:
    GRSNode(const QString& name, QWidget* parent);

    void process(QImage& image) override;
};
