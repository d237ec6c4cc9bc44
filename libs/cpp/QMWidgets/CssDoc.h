#pragma once

#include <QTextEdit>

namespace QMWidgets
{

/// The text of a style sheet, in a look of its own that the sheet does not change, with the file it
/// came from.
class CssDoc : public QTextEdit
{
    Q_OBJECT

public:
    explicit CssDoc(QWidget* parent = nullptr);

    /// Gives the text its own look again.
    void applyLook();

signals:
    /// The text has this file now.
    void changeWindowTitle(const QString& title);

public slots:
    /// Each asks for a file as it needs one. After a cancel, or if the file can't be read or
    /// written, everything stays as it is.
    void slotLoad();
    void slotSave();
    void slotSaveAs();

protected:
    bool event(QEvent* event) override;

private:
    void saveTo(const QString& name);

    QString m_fileName;
};

} // namespace QMWidgets
