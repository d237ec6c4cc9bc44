#pragma once

#include "flow/BaseNode.h"

/// A node without parameters: its page says so.
class PlainNode : public BaseNode
{
    Q_OBJECT

public:
    PlainNode(const QString& name, QWidget* parent);
};
