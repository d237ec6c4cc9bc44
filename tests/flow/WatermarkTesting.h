#pragma once

#include "flow/nodes/WMRNode.h"
#include "NodeTesting.h"
#include "support/ModalDialog.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>

/// What the tests of the watermark's page have in common.

inline QPushButton* button(const QWidget& node, const char* objectName)
{
    return node.findChild<QPushButton*>(QLatin1String(objectName));
}

/// The control beside a caption, or the first of several.
template <class Control> Control* beside(const QWidget& node, const char* caption)
{
    for (const QLabel* label : node.findChildren<QLabel*>()) {
        if (label->text() == QLatin1String(caption)) {
            return qobject_cast<Control*>(label->buddy());
        }
    }
    return nullptr;
}

inline QComboBox* kind(const QWidget& node)
{
    return beside<QComboBox>(node, "Kind:");
}

/// What the node tells of one parameter.
inline QString told(BaseNode& node, const char* tag)
{
    for (const QString& parameter : written(node)) {
        if (parameter.section(QLatin1Char('='), 0, 0) == QLatin1String(tag)) {
            return parameter.section(QLatin1Char('='), 1);
        }
    }
    return QString();
}

inline void loadOne(BaseNode& node, const char* tag, const QString& text)
{
    load(node, QStringLiteral("<P><%1>%2</%1></P>").arg(QLatin1String(tag), text));
}

/// Lets the user choose a file.
inline void browse(WMRNode& node, const QString& file)
{
    withModalDialog([&node] { button(node, "WMRBrowseButton")->click(); },
                    [&file](QDialog* dialog) {
                        qobject_cast<QFileDialog*>(dialog)->selectFile(file);
                        dialog->accept();
                    });
}
