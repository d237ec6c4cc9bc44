#include "flow/Operations.h"

#include "flow/nodes/BCSNode.h"
#include "flow/nodes/BINNode.h"
#include "flow/nodes/BLRNode.h"
#include "flow/nodes/CRPNode.h"
#include "flow/nodes/FRMNode.h"
#include "flow/nodes/GRSNode.h"
#include "flow/nodes/HSTNode.h"
#include "flow/nodes/INVNode.h"
#include "flow/nodes/MRRNode.h"
#include "flow/nodes/RGBNode.h"
#include "flow/nodes/RSZNode.h"
#include "flow/nodes/RTTNode.h"
#include "flow/nodes/UCSNode.h"
#include "flow/nodes/WMRNode.h"
#include <MGraphX/Tone.h>

#include <algorithm>
#include <QIcon>
#include <utility>

namespace
{

namespace tone = MGraphX::tone;

template <class Node> BaseNode* create(const QString& name)
{
    return new Node(name, nullptr);
}

template <class Node> QImage process(QImage image, const QString& xml)
{
    return Node::processFromXml(std::move(image), xml);
}

/// For an operation without parameters, whatever the text says.
template <QImage (*filter)(QImage)> QImage plain(QImage image, const QString&)
{
    return filter(std::move(image));
}

QVector<Operation> makeOperations()
{
    return {
        {QStringLiteral("Brightness, Contrast, Saturation"), QStringLiteral("Icon_BRT.png"),
         create<BCSNode>, process<BCSNode>},
        {QStringLiteral("Crop"), QStringLiteral("Icon_CRP.png"), create<CRPNode>, process<CRPNode>},
        {QStringLiteral("Resize"), QStringLiteral("Icon_RSZ.png"), create<RSZNode>,
         process<RSZNode>},
        {QStringLiteral("Rotate"), QStringLiteral("Icon_RTT.png"), create<RTTNode>,
         process<RTTNode>},
        {QStringLiteral("Mirror"), QStringLiteral("Icon_MRR.png"), create<MRRNode>,
         process<MRRNode>},
        {QStringLiteral("Watermark"), QStringLiteral("Icon_WMR.png"), create<WMRNode>,
         process<WMRNode>, WMRNode::filterFromXml},
        {QStringLiteral("Histogram optimizer"), QStringLiteral("Icon_HST.png"), create<HSTNode>,
         process<HSTNode>},
        {QStringLiteral("Vignetting"), QStringLiteral("Icon_WGN.png"), create<UCSNode>,
         process<UCSNode>},
        {QStringLiteral("Frame"), QStringLiteral("Icon_FRM.png"), create<FRMNode>,
         process<FRMNode>},
        {QStringLiteral("RGB-Order"), QStringLiteral("Icon_RGB.png"), create<RGBNode>,
         process<RGBNode>},
        {QStringLiteral("Blur"), QStringLiteral("Icon_BLR.png"), create<BLRNode>, process<BLRNode>},
        {QStringLiteral("Invert"), QStringLiteral("Icon_INV.png"), create<INVNode>,
         plain<tone::invert>},
        {QStringLiteral("Binarization"), QStringLiteral("Icon_BIN.png"), create<BINNode>,
         process<BINNode>},
        {QStringLiteral("Grayscale"), QStringLiteral("Icon_GRS.png"), create<GRSNode>,
         plain<tone::grayscale>},
    };
}

constexpr int kIconSize = 64;

/// The order in which nodeIcon looks: a text that holds several names gets the icon of the first.
const char* const kIconOrder[] = {
    "Binarization", "Blur",      "Brightness, Contrast, Saturation",
    "Crop",         "Frame",     "Histogram optimizer",
    "Invert",       "Mirror",    "RGB-Order",
    "Resize",       "Rotate",    "Vignetting",
    "Grayscale",    "Watermark",
};

} // namespace

ImageFilter Operation::filterFromXml(const QString& xml) const
{
    if (readFilter) {
        return readFilter(xml);
    }
    return [process = processFromXml, xml](QImage image) {
        return process(std::move(image), xml);
    };
}

const QVector<Operation>& operations()
{
    static const QVector<Operation> table = makeOperations();
    return table;
}

const Operation* findOperation(const QString& name)
{
    const QVector<Operation>& table = operations();
    const auto row = std::find_if(table.begin(), table.end(), [&name](const Operation& operation) {
        return operation.name == name;
    });
    return row == table.end() ? nullptr : &*row;
}

QPixmap nodeIcon(const QString& operationName)
{
    for (const char* const name : kIconOrder) {
        if (operationName.contains(QLatin1String(name))) {
            // By way of an icon, which takes the picture's twin on a dense screen.
            const QIcon icon(QLatin1String(":/") + findOperation(QLatin1String(name))->icon);
            return icon.pixmap(kIconSize, kIconSize);
        }
    }
    return QPixmap();
}
