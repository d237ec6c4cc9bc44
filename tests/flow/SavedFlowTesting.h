#pragma once

#include "flow/FlowsFolder.h"
#include "flow/Operations.h"
#include "FlowTesting.h"
#include "support/ModalDialog.h"

#include <QFile>
#include <QLabel>
#include <QLineEdit>

/// What the tests of saved flows have in common.

inline QStringList labelTexts(const QDialog* dialog)
{
    QStringList all;
    for (const QLabel* label : dialog->findChildren<QLabel*>()) {
        all += label->text();
    }
    return all;
}

/// Gives the dialog a name; for a null one, cancels it with a name typed.
inline void answerName(QDialog* dialog, const QString& name)
{
    QCOMPARE(dialog->windowTitle(), QStringLiteral("Save Flow"));
    QCOMPARE(labelTexts(dialog), QStringList(QStringLiteral("Flow's Name:")));
    for (QLineEdit* edit : dialog->findChildren<QLineEdit*>()) {
        if (edit->isVisible()) {
            edit->setText(name.isNull() ? QStringLiteral("typed") : name);
        }
    }
    name.isNull() ? dialog->reject() : dialog->accept();
}

/// Saves under a name. `answer` has to end the question whether to overwrite.
inline void save(
    Flow& flow, const QString& name,
    const std::function<void(QDialog*)>& answer = [](QDialog*) { QFAIL("a question"); })
{
    withModalDialogs([&flow] { flow.chooseFavorite(QStringLiteral("&Save...")); },
                     {[&name](QDialog* dialog) { answerName(dialog, name); }, answer});
}

/// Presses a button of a dialog; without a caption, dismisses the dialog.
inline std::function<void(QDialog*)> press(const char* caption)
{
    return [caption](QDialog* dialog) {
        *caption ? buttonOf(dialog, QLatin1String(caption))->click() : dialog->reject();
    };
}

inline QByteArray content(const QString& file)
{
    QFile input(flowsFolder() + file);
    return input.open(QIODevice::ReadOnly) ? input.readAll() : QByteArray("missing");
}

inline void put(const QString& file, const QByteArray& bytes)
{
    QFile output(flowsFolder() + file);
    QVERIFY(output.open(QIODevice::WriteOnly) && output.write(bytes) == bytes.size());
}

/// The flows that the menu lists.
inline QStringList savedNames(Flow& flow)
{
    QStringList names;
    for (const QAction* action : flow.favorites()->actions().mid(5)) {
        names += action->text();
    }
    names.sort();
    return names;
}

/// The batch's way.
inline QImage throughTheBatch(Flow& flow, QImage image)
{
    for (BaseNode* node : flow.options.flow()) {
        if (node->isActive()) {
            image = findOperation(node->name())->processFromXml(image, node->parametersText());
        }
    }
    return image;
}
