#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

class ItemsModel;

/// What the whole program knows of its photos: how many there are, which one is current, and
/// whether the flow runs on a reduced copy.
///
/// One object for the process, made at the first use and never destroyed. Interface thread only.
/// The count, the index and the name mirror the source panel's square, which alone writes them.
class CommonData : public QObject
{
    Q_OBJECT

public:
    static CommonData* instance();

    int count() const { return m_count; }
    void setCount(int count) { m_count = count; }

    /// Counted from 0.
    int currentIndex() const { return m_currentIndex; }
    void setCurrentIndex(int index) { m_currentIndex = index; }

    /// True while the flow runs on a copy about as wide as the preview, false while it runs on the
    /// photo at its own size.
    bool previewMode() const { return m_previewMode; }
    void setPreviewMode(bool on) { m_previewMode = on; }

    /// The current photo's file name without its last extension.
    QString currentName() const { return m_currentName; }
    void setCurrentName(const QString& name) { m_currentName = name; }

    ItemsModel* model() const { return m_model; }
    QList<QUrl> items() const;
    QString itemName(int index) const;

private:
    CommonData();

    int m_count = 0;
    int m_currentIndex = 0;
    bool m_previewMode = true;
    QString m_currentName;
    ItemsModel* m_model;
};
