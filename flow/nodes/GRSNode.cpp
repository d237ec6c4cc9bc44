#include "flow/nodes/GRSNode.h"

#include <MGraphX/GraphX.h>

GRSNode::GRSNode(const QString& name, QWidget* parent)
    : PlainNode(name, parent)
{
    setNodeIcon(name);
}

void GRSNode::process(QImage& image)
{
    runFilter(image, &MGraphX::GraphX::grayscale);
}
