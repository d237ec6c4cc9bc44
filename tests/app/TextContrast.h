#pragma once

#include <QColor>
#include <QList>
#include <QString>

class QWidget;

/// How well the text of a widget is told from what lies below it.
struct TextContrast {
    const QWidget* widget = nullptr;
    QColor text;
    QColor ground;     ///< where it comes nearest to the text
    double ratio = 21; ///< of luminances, as the guidelines for accessible content have it
};

/// Measures the texts of all enabled widgets that a window shows, from pictures of it with its
/// texts and without: the text's colour is the one furthest from its ground. The pictures have
/// twice the pixels, so that thin strokes come to their full colour.
QList<TextContrast> textContrasts(QWidget* window);
