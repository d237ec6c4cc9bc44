#include "flow/nodes/INVNode.h"

#include <MGraphX/GraphX.h>

INVNode::INVNode(const QString& name, QWidget* parent)
    : PlainNode(name, parent)
{
    setNodeIcon(name);
}

void INVNode::process(QImage& image)
{
    runFilter(image, &MGraphX::GraphX::invert);
}
