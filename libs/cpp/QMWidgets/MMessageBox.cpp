#include "MMessageBox.h"

#include "ButtonRow.h"
#include "MessageText.h"
#include "SetupPushButton.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>

namespace QMWidgets
{

namespace
{

enum Type : int { Information = 1, Warning, Critical, Question };

/// The rest is for the window's frame, which the system adds.
constexpr double kShareOfScreen = 0.9;

struct ButtonKind {
    QMessageBox::StandardButton bit;
    const char* text;
    void (MMessageBox::*slot)();
};

// Deliberate: No stands before Yes, so of the two it is the one that Enter presses.
const ButtonKind kButtons[] = {
    {QMessageBox::Ok, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Ok"), &MMessageBox::slotOk},
    {QMessageBox::Cancel, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Cancel"),
     &MMessageBox::slotCancel},
    {QMessageBox::No, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "No"), &MMessageBox::slotNo},
    {QMessageBox::Yes, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Yes"), &MMessageBox::slotYes},
    {QMessageBox::Abort, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Abort"),
     &MMessageBox::slotAbort},
    {QMessageBox::Retry, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Retry"),
     &MMessageBox::slotRetry},
    {QMessageBox::Ignore, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "Ignore"),
     &MMessageBox::slotIgnore},
    {QMessageBox::YesAll, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "YesAll"),
     &MMessageBox::slotYesAll},
    {QMessageBox::NoAll, QT_TRANSLATE_NOOP("QMWidgets::MMessageBox", "NoAll"),
     &MMessageBox::slotNoAll},
};

QPixmap iconOf(int type)
{
    const QStyle* const style = QApplication::style();
    switch (type) {
    case Information:
        return style->standardPixmap(QStyle::SP_MessageBoxInformation);
    case Warning:
        return style->standardPixmap(QStyle::SP_MessageBoxWarning);
    case Critical:
        return style->standardPixmap(QStyle::SP_MessageBoxCritical);
    case Question:
        return style->standardPixmap(QStyle::SP_MessageBoxQuestion);
    default:
        return QPixmap();
    }
}

} // namespace

MMessageBox::MMessageBox(int type, const QString& title, const QString& text,
                         QMessageBox::StandardButtons buttons, QWidget* parent)
    : QDialog(parent),
      m_textLabel(new MessageText(text, this)),
      m_iconLabel(new QLabel(this))
{
    setMinimumSize(300, 200);
    setObjectName(QStringLiteral("MessageBox"));
    setWindowTitle(title);

    const QPixmap icon = iconOf(type);
    m_iconLabel->setPixmap(icon);
    // In logical pixels also where the style gives a picture for a dense screen.
    m_iconLabel->setFixedSize(icon.size() / icon.devicePixelRatio() + QSize(5, 5));

    auto* upper = new QHBoxLayout;
    upper->setContentsMargins(1, 1, 1, 1);
    upper->setSpacing(1);
    upper->addWidget(m_iconLabel);
    upper->addWidget(m_textLabel);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(5, 5, 5, 5);
    layout->setSpacing(5);
    layout->addLayout(upper);
    layout->addLayout(makeButtons(buttons));
}

QBoxLayout* MMessageBox::makeButtons(QMessageBox::StandardButtons buttons)
{
    QBoxLayout* const row = makeButtonRow();
    row->setContentsMargins(1, 1, 1, 1);
    row->setSpacing(3);
    row->addStretch(1);
    for (const ButtonKind& kind : kButtons) {
        if (buttons & kind.bit) {
            auto* button = new QPushButton(tr(kind.text), this);
            setupPushButton(button);
            connect(button, &QPushButton::clicked, this, kind.slot);
            row->addWidget(button);
        }
    }
    // Not the bar of a text that scrolls, which comes first in the order of Tab.
    if (auto* const first = findChild<QPushButton*>()) {
        first->setFocus();
    }
    row->addStretch(1);
    return row;
}

QSize MMessageBox::sizeOnScreen() const
{
    const QWidget* const place = parentWidget() ? parentWidget() : this;
    const QSize room = place->screen()->availableSize() * kShareOfScreen;
    QSize size = sizeHint().boundedTo(room);
    size.setHeight(layout()->totalHeightForWidth(size.width()));
    return size.boundedTo(room).expandedTo(minimumSize());
}

void MMessageBox::setVisible(bool visible)
{
    if (visible && !testAttribute(Qt::WA_Resized)) {
        for (QWidget* const part : findChildren<QWidget*>()) {
            part->ensurePolished(); // fonts count
        }
        resize(sizeOnScreen());
    }
    QDialog::setVisible(visible);
}

int MMessageBox::ask(int type, QWidget* parent, const QString& title, const QString& text,
                     QMessageBox::StandardButtons buttons)
{
    auto* box = new MMessageBox(type, title, text, buttons, parent);
    // A box with a parent goes with it; nobody else would ever delete one without.
    box->setAttribute(Qt::WA_DeleteOnClose, !parent);
    return box->exec();
}

int MMessageBox::information(QWidget* parent, const QString& title, const QString& text,
                             QMessageBox::StandardButtons buttons, int)
{
    return ask(Information, parent, title, text, buttons);
}

int MMessageBox::warning(QWidget* parent, const QString& title, const QString& text,
                         QMessageBox::StandardButtons buttons, int)
{
    return ask(Warning, parent, title, text, buttons);
}

int MMessageBox::critical(QWidget* parent, const QString& title, const QString& text,
                          QMessageBox::StandardButtons buttons, int)
{
    return ask(Critical, parent, title, text, buttons);
}

int MMessageBox::question(QWidget* parent, const QString& title, const QString& text,
                          QMessageBox::StandardButtons buttons, int)
{
    return ask(Question, parent, title, text, buttons);
}

void MMessageBox::slotOk()
{
    done(QMessageBox::Ok);
}

void MMessageBox::slotCancel()
{
    done(QMessageBox::Cancel);
}

void MMessageBox::slotYes()
{
    done(QMessageBox::Yes);
}

void MMessageBox::slotNo()
{
    done(QMessageBox::No);
}

void MMessageBox::slotAbort()
{
    done(QMessageBox::Abort);
}

void MMessageBox::slotRetry()
{
    done(QMessageBox::Retry);
}

void MMessageBox::slotIgnore()
{
    done(QMessageBox::Ignore);
}

void MMessageBox::slotYesAll()
{
    done(QMessageBox::YesAll);
}

void MMessageBox::slotNoAll()
{
    done(QMessageBox::NoAll);
}

} // namespace QMWidgets
