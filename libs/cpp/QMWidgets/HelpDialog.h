#pragma once

#include <QDialog>

class QPushButton;

namespace QMWidgets
{

class HelpViewArea;

/// The program's introduction: a slide show that runs while the dialog is shown, and the user's way
/// to keep it from opening at every start. Needs an App.
class HelpDialog : public QDialog
{
    Q_OBJECT

public:
    explicit HelpDialog(QWidget* parent);

    /// Adds a picture file at the end of the show, which need not exist.
    void addSlide(const QString& path);

    /// Whether the user has said that the help is not to open by itself.
    static bool isNeverShown();

public slots:
    void slotReject();
    void slotNeverShowItAgain();

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QPushButton* m_neverButton;
    HelpViewArea* m_viewArea;
    QPushButton* m_closeButton;
};

} // namespace QMWidgets
