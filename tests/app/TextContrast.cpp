#include "TextContrast.h"

#include <cmath>
#include <QCoreApplication>
#include <QHash>
#include <QImage>
#include <QVector>
#include <QWidget>

namespace
{

constexpr int kRatio = 2;

/// A window's own sheet goes before the application's.
const QString kWithoutTexts = QStringLiteral(
    "QLabel, QPushButton, QCheckBox, QToolBar QToolButton, QGroupBox, QGroupBox::title,"
    "QComboBox, QComboBox::item, QLineEdit, QSpinBox, QTextEdit, QListView, QListView::item,"
    "QListView::item:selected:active, QListView::item:selected:!active, QTreeView, QTreeView::item,"
    "QTreeView::item:selected, QHeaderView::section, QToolTip, QMenu, QMenu::item,"
    "QMenuBar, QMenuBar::item, QProgressBar, QStatusBar"
    "{ color: transparent; selection-color: transparent; }");

struct Spot {
    QRgb text;
    QRgb ground;
};

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& one, const QColor& other)
{
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

QImage pictureOf(QWidget* window)
{
    QImage image(window->size() * kRatio, QImage::Format_RGB32);
    image.setDevicePixelRatio(kRatio);
    image.fill(Qt::black);
    window->render(&image);
    return image;
}

TextContrast measure(const QWidget* widget, const QVector<Spot>& spots)
{
    TextContrast result;
    result.widget = widget;
    double furthest = 0;
    for (const Spot& spot : spots) {
        const double ratio = contrast(spot.text, spot.ground);
        if (ratio > furthest) {
            furthest = ratio;
            result.text = spot.text;
        }
    }
    for (const Spot& spot : spots) {
        const double ratio = contrast(result.text, spot.ground);
        if (ratio < result.ratio) {
            result.ratio = ratio;
            result.ground = spot.ground;
        }
    }
    return result;
}

} // namespace

QList<TextContrast> textContrasts(QWidget* window)
{
    // Where the keyboard is a cursor blinks.
    if (QWidget* const focused = window->focusWidget()) {
        focused->clearFocus();
    }
    const QImage with = pictureOf(window);
    const QString sheet = window->styleSheet();
    window->setStyleSheet(sheet + kWithoutTexts);
    const QImage without = pictureOf(window);
    window->setStyleSheet(sheet);

    QHash<const QWidget*, QVector<Spot>> spots;
    for (int y = 0; y < with.height(); ++y) {
        const auto* const texts = reinterpret_cast<const QRgb*>(with.constScanLine(y));
        const auto* const grounds = reinterpret_cast<const QRgb*>(without.constScanLine(y));
        for (int x = 0; x < with.width(); ++x) {
            const Spot spot{texts[x], grounds[x]};
            if (spot.text != spot.ground) {
                const QWidget* const child = window->childAt(x / kRatio, y / kRatio);
                spots[child ? child : window] += spot;
            }
        }
    }
    QList<TextContrast> results;
    for (auto one = spots.constBegin(); one != spots.constEnd(); ++one) {
        if (one.key()->isEnabled()) {
            results += measure(one.key(), one.value());
        }
    }
    return results;
}
