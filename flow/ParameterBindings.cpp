#include "flow/ParameterBindings.h"

#include "flow/ComboSlider.h"
#include "flow/ParameterReader.h"
#include <QMWidgets/ColorWidget.h>

#include <algorithm>
#include <QAbstractButton>
#include <QComboBox>
#include <QDomDocument>
#include <QLineEdit>
#include <QSpinBox>

namespace
{

/// Surrogates are none by themselves, but in pairs.
bool isXmlCharacter(QChar character)
{
    const ushort code = character.unicode();
    return code >= 0x20 ? !character.isSurrogate() && code < 0xfffe
                        : code == '\t' || code == '\n' || code == '\r';
}

/// The XML reader drops a text of nothing but blanks, unless it stands in a section of its own.
QDomText textNode(QDomDocument document, const QString& text)
{
    const QString told = ParameterBindings::writable(text);
    const bool blank = !told.isEmpty() && told.trimmed().isEmpty();
    return blank ? document.createCDATASection(told) : document.createTextNode(told);
}

} // namespace

QString ParameterBindings::writable(const QString& text)
{
    if (std::all_of(text.begin(), text.end(), isXmlCharacter)) {
        return text;
    }
    QString told;
    for (int i = 0; i < text.size(); ++i) {
        const bool isPair =
            text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            told += text.midRef(i++, 2);
        } else if (isXmlCharacter(text.at(i))) {
            told += text.at(i);
        }
    }
    return told;
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
