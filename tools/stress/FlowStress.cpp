#include "FlowStress.h"

#include "app/MainPage.h"
#include "flow/BaseNode.h"
#include "flow/FlowPanel.h"
#include "flow/NodesOptionsPanel.h"
#include "flow/Operations.h"
#include "support/Photos.h"
#include <MGraphX/GraphX.h>

#include <cstdio>
#include <QMenu>

namespace
{

/// A flow file of some megabytes, so that a kill has the time to meet it.
const QString kLargeFlow = QStringLiteral("large.flow");
const QString kLongFlow = QStringLiteral("long.flow");
constexpr int kLongFlowNodes = 30;
constexpr int kSavesInARow = 20;

void makeLarge(FlowPanel& panel)
{
    const QString logo = MGraphX::GraphX::imageToDataUrl(noise(QSize(900, 700), 1), "PNG", -1);
    panel.loadFlow(QStringLiteral("<F><Operation name='Watermark' index='0'><Parameters>"
                                  "<ImageData>%1</ImageData></Parameters></Operation></F>")
                       .arg(logo));
}

void makeLong(FlowPanel& panel)
{
    panel.slotNewFavorite();
    for (int i = 0; i < kLongFlowNodes; ++i) {
        panel.addNode(operations().at(i % operations().size()).name);
    }
}

} // namespace

int saveFlowsForEver()
{
    MainPage page(nullptr);
    auto* const panel = page.findChild<FlowPanel*>();
    for (int saves = 1;; saves = kSavesInARow) {
        makeLarge(*panel);
        for (int i = 0; i < saves; ++i) {
            panel->writeFlow(kLargeFlow);
        }
        makeLong(*panel);
        for (int i = 0; i < saves; ++i) {
            panel->writeFlow(kLongFlow);
        }
        std::puts("ready");
        std::fflush(stdout);
    }
}

int checkFlows()
{
    MainPage page(nullptr);
    const auto* const options = page.findChild<NodesOptionsPanel*>();
    const auto* const menu = page.findChild<QMenu*>(QStringLiteral("FavoritesMenu"));
    int whole = 0;
    for (QAction* action : menu->actions()) {
        const QString name = action->data().toString();
        if (name == kLargeFlow || name == kLongFlow) {
            page.findChild<FlowPanel*>()->slotNewFavorite();
            action->trigger();
            const int expected = name == kLongFlow ? kLongFlowNodes : 1;
            whole += options->flow().size() == expected ? 1 : 0;
        }
    }
    std::printf("%d of 2 flows are whole\n", whole);
    return whole == 2 ? 0 : 1;
}
