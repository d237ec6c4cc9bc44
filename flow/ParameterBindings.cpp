#include "flow/ParameterBindings.h"

#include "flow/ComboSlider.h"
#include "flow/ParameterReader.h"
#include <QMWidgets/ColorWidget.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDomDocument>
#include <QLineEdit>
#include <QSpinBox>

namespace
{

/// The XML reader drops a text of nothing but blanks, unless it stands in a section of its own.
QDomText textNode(QDomDocument document, const QString& text)
{
    const QString told = ParameterBindings::writable(text);
    const bool blank = !told.isEmpty() && told.trimmed().isEmpty();
    return blank ? document.createCDATASection(told) : document.createTextNode(told);
}

} // namespace

QString ParameterBindings::writable(QString text)
{
    return text.remove(QChar(0xfffe)).remove(QChar(0xffff));
}

void ParameterBindings::bind(const char* tag, Apply apply, Tell tell)
{
    m_bindings.append({QLatin1String(tag), std::move(apply), std::move(tell)});
}

void ParameterBindings::bind(const char* tag, ComboSlider* slider)
{
    bindNumber(tag, slider, &ComboSlider::setValue, &ComboSlider::value);
}

void ParameterBindings::bind(const char* tag, QSpinBox* box)
{
    bindNumber(tag, box, &QSpinBox::setValue, &QSpinBox::value);
}

void ParameterBindings::bind(const char* tag, QLineEdit* edit)
{
    bind(
        tag, [edit](const QString& text) { edit->setText(text); }, [edit] { return edit->text(); });
}

void ParameterBindings::bind(const char* tag, QComboBox* box)
{
    bindNumber(tag, box, &QComboBox::setCurrentIndex, &QComboBox::currentIndex);
}

void ParameterBindings::bind(const char* tag, QAbstractButton* button)
{
    bind(
        tag,
        [button](const QString& text) { button->setChecked(ParameterReader::readYesNo(text)); },
        [button] { return ParameterReader::yesNo(button->isChecked()); });
}

void ParameterBindings::bind(const char* tag, QMWidgets::ColorWidget* swatch)
{
    bind(
        tag, [swatch](const QString& text) { swatch->setColor(ParameterReader::readColor(text)); },
        [swatch] { return swatch->color().name(); });
}

template <class Control>
void ParameterBindings::bindNumber(const char* tag, Control* control, void (Control::*set)(int),
                                   int (Control::*get)() const)
{
    bind(
        tag,
        [control, set](const QString& text) {
            int value = 0;
            if (ParameterReader::readInt(text, value)) {
                (control->*set)(value);
            }
        },
        [control, get] { return QString::number((control->*get)(), 10); });
}

void ParameterBindings::read(const QDomNode& parameters) const
{
    ParameterReader::forEachElement(parameters, [this](const QString& tag, const QString& text) {
        for (const Binding& binding : m_bindings) {
            if (tag == binding.tag) {
                binding.apply(text);
            }
        }
    });
}

void ParameterBindings::write(QDomElement& parameters, QDomDocument document) const
{
    for (const Binding& binding : m_bindings) {
        QDomElement element = document.createElement(binding.tag);
        element.appendChild(textNode(document, binding.tell()));
        parameters.appendChild(element);
    }
}
