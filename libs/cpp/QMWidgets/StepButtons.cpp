#include "StepButtons.h"

#include "FollowLanguage.h"

#include <QCoreApplication>
#include <QPushButton>

namespace QMWidgets
{

namespace
{

QPushButton* makeStepButton(const QString& objectName, const char* name, QWidget* parent)
{
    auto* button = new QPushButton(parent);
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
