#pragma once

#include "flow/BaseNode.h"
#include "flow/Operations.h"

#include <memory>
#include <QDomDocument>
#include <QStringList>
#include <QTest>

/// What the tests of nodes have in common.

inline std::unique_ptr<BaseNode> makeNode(const QString& name)
{
    const Operation* const operation = findOperation(name);
    return std::unique_ptr<BaseNode>(operation ? operation->create(operation->name) : nullptr);
}

inline void load(BaseNode& node, const QString& xml)
{
    QDomDocument document;
    QVERIFY(document.setContent(xml));
    node.loadParameters(document.documentElement());
}

/// The node's parameters as "tag=text" in the order of writing.
inline QStringList written(BaseNode& node)
{
    QDomDocument document;
    document.setContent(node.parametersText());
    QStringList parameters;
    for (QDomElement element = document.documentElement().firstChildElement(); !element.isNull();
         element = element.nextSiblingElement()) {
        parameters += element.tagName() + QLatin1Char('=') + element.text();
    }
    return parameters;
}

inline QImage processed(BaseNode& node, const QImage& source)
{
    QImage image = source;
    node.process(image);
    return image;
}

/// The batch's way.
inline QImage batched(const char* name, const QImage& source, const QString& xml)
{
    return findOperation(QLatin1String(name))->processFromXml(source, xml);
}
