#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

class Stage;

/// One part of the tour. Each starts with a freshly opened program and brings itself where it needs
/// to be, so that it can be played alone.
struct Scene {
    QString name; ///< one word, the start of its pictures' file names
    QString title;
    void (*run)(Stage& stage);
};

/// All scenes, in playing order.
const QVector<Scene>& scenes();

/// The scenes of these names, in playing order; all for an empty list.
QVector<Scene> scenesNamed(const QStringList& names);

/// The names in the list that belong to no scene.
QStringList unknownNames(const QStringList& names);
