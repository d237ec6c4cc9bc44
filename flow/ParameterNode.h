#pragma once

#include "flow/BaseNode.h"
#include "flow/ParameterBindings.h"

class ComboSlider;
struct ColorParameter;
struct SliderParameter;

namespace QMWidgets
{
class ColorWidget;
}

/// A node whose parameters are tied to their controls: what is bound is read and written.
class ParameterNode : public BaseNode
{
    Q_OBJECT

public:
    using BaseNode::BaseNode;

    void readParameters(const QDomNode& parameters) override;
    void writeParameters(QDomElement& parameters, QDomDocument document) override;

protected:
    /// Makes the parameter's slider, which is in no form and not bound yet.
    ComboSlider* makeSlider(const SliderParameter& parameter);
    /// Makes the parameter's slider, puts it into the form and binds it.
    ComboSlider* addSlider(const SliderParameter& parameter, QFormLayout* form);
    /// The same for a colour and its swatch.
    QMWidgets::ColorWidget* addColor(const ColorParameter& parameter, QFormLayout* form);
    /// The swatch's colour as parameter texts tell it: opaque, and black where it is none. So the
    /// batch draws the colour that the user has seen.
    static QColor toldColor(const QMWidgets::ColorWidget* swatch);
    ParameterBindings& bindings() { return m_bindings; }

private:
    QString translated(const char* caption) const;

    ParameterBindings m_bindings;
};
