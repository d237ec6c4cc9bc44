#include "GroupBox.h"

#include <QPixmap>
#include <QStyleOptionGroupBox>
#include <QStylePainter>

namespace QMWidgets
{

namespace
{

constexpr int kOverhang = 2; ///< how far a text may reach beyond its place

} // namespace

void GroupBox::paintEvent(QPaintEvent* event)
{
    QStyleOptionGroupBox option;
    initStyleOption(&option);
    const auto place = [&](QStyle::SubControl part) {
        return style()
            ->subControlRect(QStyle::CC_GroupBox, &option, part, this)
            .adjusted(-kOverhang, 0, kOverhang, 0);
    };
    const QRect check = place(QStyle::SC_GroupBoxCheckBox);
    const QRect label = place(QStyle::SC_GroupBoxLabel);
    if (!isCheckable() || !isRightToLeft() || check.left() > label.left()) {
        QGroupBox::paintEvent(event);
        return;
    }
    // By way of a picture, since the style clips as it likes.
    const double ratio = devicePixelRatioF();
    QPixmap whole((QSizeF(size()) * ratio).toSize());
    whole.setDevicePixelRatio(ratio);
    whole.fill(Qt::transparent);
    QStylePainter stylePainter(&whole, this);
    stylePainter.setFont(font());
    stylePainter.drawComplexControl(QStyle::CC_GroupBox, option);
    stylePainter.end();

    const QRect both = check.united(label);
    QPainter painter(this);
    painter.setClipRegion(QRegion(rect()) - both);
    painter.drawPixmap(0, 0, whole);
    painter.setClipping(false);
    for (const QRect& part : {check, label}) {
        painter.drawPixmap(QRectF(QStyle::visualRect(Qt::RightToLeft, both, part)), whole,
                           QRectF(part.topLeft() * ratio, QSizeF(part.size()) * ratio));
    }
}

} // namespace QMWidgets
