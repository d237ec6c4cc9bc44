#include "scenes/Scenes.h"
#include "Stage.h"

#include <QAction>
#include <QMWidgets/CssDoc.h>
#include <QMWidgets/CssEditor.h>
#include <QPushButton>
#include <QTest>

namespace
{

QMWidgets::CssEditor* openEditor()
{
    QMWidgets::App::app()->slotShowCssEditor();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (auto* const editor = qobject_cast<QMWidgets::CssEditor*>(window)) {
            return editor;
        }
    }
    return nullptr;
}

} // namespace

void editStyleSheet(Stage& stage)
{
    stage.dropPhotos();
    QPointer<QMWidgets::CssEditor> editor = openEditor();
    if (!stage.waitFor([&editor] { return editor && editor->isActiveWindow(); },
                       QStringLiteral("the editor opens"))) {
        return;
    }
    const QString sheet = qApp->styleSheet();
    auto* const doc = stage.find<QMWidgets::CssDoc>(editor);
    doc->setPlainText(QStringLiteral("/* The page in blue; a comment\n   may run over lines */\n"
                                     "class public const this\n") +
                      sheet);
    stage.shoot(QStringLiteral("editor"), editor);
    doc->setPlainText(sheet + QStringLiteral("QFrame#MainPage { background: #203050; }\n"));
    QTest::keyClick(doc, Qt::Key_A, Qt::ControlModifier);
    stage.check(qApp->styleSheet().contains(QLatin1String("#203050")),
                QStringLiteral("the key applies the text"));
    stage.shoot(QStringLiteral("applied"));
    stage.shoot(QStringLiteral("editor-after"), editor);
    QTest::keyClick(doc, Qt::Key_I, Qt::ControlModifier);
    stage.check(stage.find<QPushButton>(QStringLiteral("ShareButton"))
                    ->toolTip()
                    .endsWith(QLatin1String("ShareButton")),
                QStringLiteral("the tool tips tell the selectors"));
    qApp->setStyleSheet(sheet);
    editor->close();
    stage.waitFor([&editor] { return !editor; }, QStringLiteral("the editor goes"));
}
