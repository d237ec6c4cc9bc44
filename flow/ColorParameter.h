#pragma once

#include "flow/ParameterReader.h"

#include <QColor>

/// A colour parameter with a swatch, told once, as SliderParameter is for a slider.
struct ColorParameter {
    const char* tag;          ///< its element in the parameter XML
    const char* caption;      ///< in the form row, translated in the node's context
    Qt::GlobalColor value;    ///< what a new node starts with
    Qt::GlobalColor fallback; ///< what the batch takes where the XML tells nothing
};

/// The parameter's value as a parameter text tells it. Errors: a text that names no colour is an
/// invalid one, which the filters take for opaque black.
inline QColor readValue(const QString& xml, const ColorParameter& parameter)
{
    return ParameterReader::colorValue(xml, parameter.tag, parameter.fallback);
}
