#include "BenchSupport.h"
#include <MGraphX/HeapPolicy.h>
#include <QMWidgets/App.h>
#include <QMWidgets/ImageViewer.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <QSlider>
#include <vector>

// Times a step of the large view's zoom slider on a photo of 24 megapixels, from the slider's value
// to the painted window, beside the smooth scaling of the same photo to the same size alone.

namespace
{

constexpr QSize kPhoto(6000, 4000);
constexpr int kZooms[] = {10, 17, 25, 33, 50, 75, 90};

double milliseconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

double median(std::vector<double> values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void compare(const char* name, const QImage& photo, QImage::Format bareFormat)
{
    const QImage bare = photo.convertToFormat(bareFormat);
    QMWidgets::ImageViewer viewer;
    viewer.resize(1344, 756);
    viewer.show();
    viewer.slotLoad(photo);
    auto* const slider = viewer.findChild<QSlider*>();
    QCoreApplication::processEvents();
    std::printf("%s\n", name);
    for (const int zoom : kZooms) {
        const QSize size = kPhoto * zoom / 100;
        std::vector<double> scalings;
        std::vector<double> steps;
        std::vector<double> ratios;
        for (int i = 0; i < 9; ++i) {
            slider->setValue(zoom + 1);
            QCoreApplication::processEvents();
            scalings.push_back(milliseconds([&bare, size] {
                bare.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
            }));
            steps.push_back(milliseconds([slider, zoom] {
                slider->setValue(zoom);
                QCoreApplication::processEvents();
            }));
            ratios.push_back(steps.back() / scalings.back());
        }
        std::printf("  %3d %%  scaling %7.2f ms  step %7.2f ms  %.2f x\n", zoom, median(scalings),
                    median(steps), median(ratios));
    }
}

} // namespace

int main(int argc, char** argv)
{
    MGraphX::keepHeap();
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QMWidgets::App app(argc, argv, QStringLiteral("Corvane"), QStringLiteral("Tessarin"));
    QImage photo = benchPhoto(kPhoto);
    compare("opaque, beside RGB32", photo, QImage::Format_RGB32);
    photo.setPixelColor(0, 0, QColor(1, 2, 3, 128));
    compare("with alpha, beside ARGB32_Premultiplied", photo, QImage::Format_ARGB32_Premultiplied);
    return 0;
}
