#include "StepButtons.h"

#include "FollowLanguage.h"
#include "RepeatGate.h"

#include <QCoreApplication>
#include <QPushButton>

namespace QMWidgets
{

namespace
{

/// Enter steps too, and repeats.
class StepButton : public QPushButton
{
public:
    explicit StepButton(QWidget* parent)
        : QPushButton(parent),
          m_repeatGate(new RepeatGate(this))
    {
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        m_repeatGate->pass(event, [this, event] { QPushButton::keyPressEvent(event); });
    }

private:
    RepeatGate* m_repeatGate;
};

QPushButton* makeStepButton(const QString& objectName, const char* name, QWidget* parent)
{
    auto* button = new StepButton(parent);
    button->setObjectName(objectName);
    followLanguage(button, [button, name] {
        button->setAccessibleName(QCoreApplication::translate("StepButtons", name));
    });
    return button;
}

} // namespace

QPushButton* makeNextButton(QWidget* parent)
{
    return makeStepButton(QStringLiteral("NextImageButton"),
                          QT_TRANSLATE_NOOP("StepButtons", "Next photo"), parent);
}

QPushButton* makePreviousButton(QWidget* parent)
{
    return makeStepButton(QStringLiteral("PreviousImageButton"),
                          QT_TRANSLATE_NOOP("StepButtons", "Previous photo"), parent);
}

} // namespace QMWidgets
