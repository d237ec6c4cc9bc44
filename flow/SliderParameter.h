#pragma once

#include "flow/ParameterReader.h"

#include <array>
#include <cstddef>

/// A whole-number parameter with a slider, told once: the node's page, its XML and the batch all
/// read this row.
struct SliderParameter {
    const char* tag;     ///< its element in the parameter XML
    const char* caption; ///< in the form row, translated in the node's context
    int minimum;
    int maximum;
    int tick;
    int step;         ///< single step of the slider; 0 keeps the control's own
    int value;        ///< what a new node starts with
    int fallback;     ///< what the batch takes where the XML tells nothing; not always the same
    const char* unit; ///< "%", "px" or nothing
};

/// The parameters' values as a parameter text tells them.
template <std::size_t count>
std::array<int, count> readValues(const QString& xml, const SliderParameter (&parameters)[count])
{
    std::array<int, count> values;
    for (std::size_t i = 0; i < count; ++i) {
        values[i] = parameters[i].fallback;
    }
    ParameterReader::forEachElement(xml, [&](const QString& tag, const QString& text) {
        for (std::size_t i = 0; i < count; ++i) {
            if (tag == QLatin1String(parameters[i].tag)) {
                ParameterReader::readInt(text, values[i]);
            }
        }
    });
    return values;
}
