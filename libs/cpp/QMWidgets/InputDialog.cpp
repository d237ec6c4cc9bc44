#include "InputDialog.h"

#include "ButtonRow.h"
#include "SetupPushButton.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>

#include <limits>

namespace QMWidgets
{

namespace
{

enum Mode : int { Number, Text };

/// Runs the dialog and deletes it; returns what `read` tells of its end. A parent that is deleted
/// meanwhile takes the dialog with it: then `lost` is returned, as from a cancel.
template <class Value, class Read>
Value run(InputDialog* dialog, bool* ok, const Value& lost, const Read& read)
{
    const QPointer<InputDialog> guard(dialog);
    const bool accepted = dialog->exec() == QDialog::Accepted;
    if (ok) {
        *ok = accepted;
    }
    const Value value = guard ? read() : lost;
    delete guard;
    return value;
}

} // namespace

InputDialog::InputDialog(const QString& label, QWidget* parent, QWidget*, Qt::WindowFlags, int mode)
    : QDialog(parent),
      m_spinBox(new QSpinBox),
      m_lineEdit(new QLineEdit),
      m_okButton(new QPushButton(tr("Ok"), this)),
      m_cancelButton(new QPushButton(QStringLiteral("Cancel"), this)),
      m_stack(new QStackedWidget(this)),
      m_mode(mode)
{
    setObjectName(QStringLiteral("InputDialog"));
    m_lineEdit->setFixedHeight(32);
    m_spinBox->setAccessibleName(label);
    m_lineEdit->setAccessibleName(label);
    // Open to every number until a range is set: the toolkit's own begins with 0 to 99.
    m_spinBox->setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    m_stack->addWidget(m_spinBox);
    m_stack->addWidget(m_lineEdit);
    if (mode == Number || mode == Text) {
        m_stack->setCurrentIndex(mode);
        m_stack->currentWidget()->setFocus(Qt::OtherFocusReason);
    }

    setupPushButton(m_okButton);
    setupPushButton(m_cancelButton);
    m_okButton->setDefault(true);
    connect(m_okButton, &QPushButton::clicked, this, &InputDialog::accept);
    connect(m_cancelButton, &QPushButton::clicked, this, &InputDialog::reject);

    auto* input = new QVBoxLayout;
    auto* caption = new QLabel(label, this);
    caption->setBuddy(m_stack->currentWidget());
    input->addWidget(caption);
    input->addWidget(m_stack);
    QBoxLayout* const buttons = makeButtonRow();
    buttons->addStretch(1);
    buttons->addWidget(m_okButton);
    buttons->addWidget(m_cancelButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(10, 10, 10, 10);
    layout->setSpacing(7);
    layout->addLayout(input);
    layout->addLayout(buttons);
}

QString InputDialog::getText(QWidget* parent, const QString& title, const QString& label,
                             QLineEdit::EchoMode echoMode, const QString& text, bool* ok,
                             Qt::WindowFlags flags)
{
    auto* dialog = new InputDialog(label, parent, nullptr, flags, Text);
    dialog->setWindowTitle(title);
    dialog->m_lineEdit->setEchoMode(echoMode);
    dialog->m_lineEdit->setText(text);
    dialog->m_lineEdit->selectAll();
    dialog->m_lineEdit->setFocus();
    return run(dialog, ok, text, [dialog] { return dialog->m_lineEdit->text(); });
}

int InputDialog::getInteger(QWidget* parent, const QString& title, const QString& label, int value,
                            int minimum, int maximum, int, bool* ok, Qt::WindowFlags flags)
{
    auto* dialog = new InputDialog(label, parent, nullptr, flags, Number);
    dialog->setWindowTitle(title);
    dialog->m_spinBox->setValue(value);
    dialog->m_spinBox->setRange(minimum, maximum);
    dialog->m_spinBox->selectAll();
    return run(dialog, ok, value, [dialog] { return dialog->m_spinBox->value(); });
}

void InputDialog::accept()
{
    QDialog::accept();
}

void InputDialog::reject()
{
    QDialog::reject();
}

} // namespace QMWidgets
