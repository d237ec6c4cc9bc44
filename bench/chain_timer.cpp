#include "BenchSupport.h"
#include "flow/BaseNode.h"
#include "flow/NodesOptionsPanel.h"
#include <MGraphX/HeapPolicy.h>
#include <QMWidgets/App.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

// Times a run of the live chain on a photo of 24 megapixels, with no node and with six of them,
// beside the one smooth scaling that a run can't do without.

namespace
{

double medianMilliseconds(const std::function<void()>& work)
{
    std::vector<double> times;
    for (int i = 0; i < 9; ++i) {
        const auto start = std::chrono::steady_clock::now();
        work();
        const std::chrono::duration<double, std::milli> time =
            std::chrono::steady_clock::now() - start;
        times.push_back(time.count());
    }
    std::nth_element(times.begin(), times.begin() + 4, times.end());
    return times[4];
}

} // namespace

int main(int argc, char** argv)
{
    MGraphX::keepHeap();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tessarin"));
    const QImage photo = benchPhoto(QSize(6000, 4000));
    NodesOptionsPanel panel(nullptr);
    panel.setImage(photo);

    const double scaling = medianMilliseconds(
        [&photo] { photo.scaled(360, 360, Qt::KeepAspectRatio, Qt::SmoothTransformation); });
    const double empty = medianMilliseconds([&panel] { panel.slotParametersChanged(); });
    QMap<int, BaseNode*> flow;
    for (const char* name : {"Brightness, Contrast, Saturation", "Grayscale", "Invert",
                             "Histogram optimizer", "Blur", "Mirror"}) {
        flow.insert(flow.size(), panel.createNode(QLatin1String(name)));
    }
    panel.slotFlowChanged(flow);
    const double six = medianMilliseconds([&panel] { panel.slotParametersChanged(); });
    std::printf("one smooth scaling %7.2f ms\n", scaling);
    std::printf("run with no node   %7.2f ms  %.2f x\n", empty, empty / scaling);
    std::printf("run with six nodes %7.2f ms  %.2f x\n", six, six / scaling);
    return 0;
}
