#pragma once

#include <QDir>
#include <QString>
#include <QWidgetList>

/// Takes pictures of windows, at the screen's pixel ratio, and numbers them within their scene.
class Camera
{
public:
    explicit Camera(const QString& folder);

    /// Takes the scene's older pictures away.
    void startScene(const QString& name);
    /// The file's name becomes scene, number and `name`. Errors: false if there is no picture or it
    /// can't be written.
    bool shoot(const QString& name, QWidget* widget);
    /// Windows as they lie upon each other on the screen, the first at the bottom.
    bool shootTogether(const QString& name, const QWidgetList& windows);

    int count() const { return m_count; }

private:
    bool write(const QString& name, const QPixmap& picture);

    QDir m_folder;
    QString m_scene;
    int m_number = 0;
    int m_count = 0;
};
