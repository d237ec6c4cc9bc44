#pragma once

#include <functional>
#include <QLatin1String>
#include <QString>
#include <QVector>

class QAbstractButton;
class QComboBox;
class QDomDocument;
class QDomElement;
class QDomNode;
class QLineEdit;
class QSpinBox;
class ComboSlider;

namespace QMWidgets
{
class ColorWidget;
}

/// Ties a node's parameters to its controls: for each tag, how its text is applied and how it is
/// told. Reading follows the order of the elements, writing the order of binding.
class ParameterBindings
{
public:
    using Apply = std::function<void(const QString& text)>;
    using Tell = std::function<QString()>;

    /// Tags are constants of the program, so they outlive the bindings.
    void bind(const char* tag, Apply apply, Tell tell);
    /// The control's own range bounds what is read.
    void bind(const char* tag, ComboSlider* slider);
    void bind(const char* tag, QSpinBox* box);
    void bind(const char* tag, QLineEdit* edit);
    /// The current index; a number outside the box leaves it with no current item.
    void bind(const char* tag, QComboBox* box);
    /// "yes" or "no", for a button that can be checked.
    void bind(const char* tag, QAbstractButton* button);
    /// The colour's name. A name that can't be read shows an invalid colour.
    void bind(const char* tag, QMWidgets::ColorWidget* swatch);

    /// A text without what XML can't hold: control characters and halves of characters, of which
    /// one may make the whole unreadable.
    static QString writable(const QString& text);

    void read(const QDomNode& parameters) const;
    void write(QDomElement& parameters, QDomDocument document) const;

private:
    struct Binding {
        QLatin1String tag;
        Apply apply;
        Tell tell;
    };

    template <class Control>
    void bindNumber(const char* tag, Control* control, void (Control::*set)(int),
                    int (Control::*get)() const);

    QVector<Binding> m_bindings;
};
