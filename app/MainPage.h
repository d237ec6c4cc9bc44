#pragma once

#include "app/PromoMainPage.h"

#include <QList>
#include <QUrl>

class Creator;
class FlowPanel;
class NodesOptionsPanel;
class QPushButton;
class Representor;

/// The one main window, 735 by 795 pixels: the menu bar, the source and result panels side by side,
/// the options panel and the flow panel. It only wires them to each other.
class MainPage : public PromoMainPage
{
    Q_OBJECT

public:
    explicit MainPage(QWidget* parent);

public slots:
    /// Takes the first photos and shows the page; help and reminders follow when they are due. An
    /// empty list shows it without a photo.
    void slotFilesDropped(const QList<QUrl>& urls);
    void slotShowSettings();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectPanels();
    void layOut();

    Creator* m_creator;
    Representor* m_representor;
    FlowPanel* m_flowPanel;
    NodesOptionsPanel* m_optionsPanel;
    QPushButton* m_settingsButton;
};
