#include "FuzzSupport.h"

#include "flow/BaseNode.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/NodesTabBar.h"
#include "flow/Operations.h"

#include <QApplication>

namespace
{

/// The panels of the main page that a flow is loaded into, with a small photo to run it on.
class Panels
{
public:
    Panels()
        : m_panel(&m_options, nullptr),
          m_bar(m_panel.findChild<NodesTabBar*>())
    {
        QObject::connect(&m_panel, &FlowPanel::showOptions, &m_options,
                         &NodesOptionsPanel::slotShowOptions);
        QObject::connect(&m_panel, &FlowPanel::flowChanged, &m_options,
                         &NodesOptionsPanel::slotFlowChanged);
        QObject::connect(&m_panel, &FlowPanel::nodeRemoved, &m_options,
                         &NodesOptionsPanel::slotNodeRemoved);
        QImage photo(7, 5, QImage::Format_ARGB32);
        photo.fill(qRgba(200, 100, 50, 200));
        m_options.setImage(photo);
    }

    void load(const QString& xml)
    {
        m_panel.loadFlow(xml);
        require(m_bar->count() <= 100, "a flow is cut off");
        require(m_bar->count() == m_options.flow().size(), "each tab has a node, each node a tab");
        for (int i = 0; i < m_bar->count(); ++i) {
            const BaseNode* const node = m_options.flow().value(i);
            require(node && findOperation(node->name()) && m_bar->tabText(i) == node->name(),
                    "a tab's node is of the operation that it names");
        }
        m_panel.slotNewFavorite();
        require(m_options.flow().isEmpty(), "a flow can be cleared");
        // Nodes and labels leave by the event loop.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

private:
    NodesOptionsPanel m_options{nullptr};
    FlowPanel m_panel;
    NodesTabBar* m_bar;
};

} // namespace

/// The text of a flow file.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    fuzzApplication();
    static Panels* const panels = new Panels;
    panels->load(textOf(data, size));
    return 0;
}
