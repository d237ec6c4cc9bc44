#include "flow/nodes/PlainNode.h"

#include <QLabel>
#include <QVBoxLayout>

PlainNode::PlainNode(const QString& name, QWidget* parent)
    : BaseNode(name, parent)
{
    auto* layout = new QVBoxLayout;
    layout->addWidget(new QLabel(QStringLiteral("<H2>No options</H2>")));
    optionsLayout()->addLayout(layout);
}
