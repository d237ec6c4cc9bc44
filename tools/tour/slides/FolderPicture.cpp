#include "slides/FolderPicture.h"

#include "slides/Drawing.h"

#include <QFileInfo>
#include <QPainter>

namespace
{

constexpr QSize kFolder(735, 436);
constexpr int kTitle = 44;
constexpr int kColumns = 3;
constexpr QSize kThumb(190, 126);
// Any day does; a slide drawn anew is to be the same.
const QString kRun = QStringLiteral("2026-05-17_18-30-12");

void drawTitle(QPainter& painter, const QString& pictures)
{
    painter.setPen(Qt::NoPen);
    painter.fillRect(QRect(0, 0, kFolder.width(), kTitle), QColor(44, 44, 46));
    painter.fillRect(QRect(0, kTitle, kFolder.width(), 1), QColor(255, 176, 46, 150));
    const QStringList way = {pictures, QStringLiteral("Corvane"), QStringLiteral("Tessarin"), kRun};
    int left = 20;
    for (const QString& part : way) {
        const bool last = &part == &way.last();
        painter.setFont(Drawing::font(18, last));
        painter.setPen(last ? QColor(0xff, 0xb0, 0x2e) : QColor(200, 200, 200));
        const QString text = last ? part : part + QStringLiteral("  ›  ");
        painter.drawText(QRect(left, 0, kFolder.width() - left, kTitle),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
        left += painter.fontMetrics().horizontalAdvance(text);
    }
}

} // namespace

QPixmap folderPicture(const QStringList& results, const QString& pictures)
{
    QPixmap picture = Drawing::blank(kFolder);
    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(QRect(QPoint(0, 0), kFolder), QColor(32, 32, 34));
    drawTitle(painter, pictures);
    const int columnWidth = kFolder.width() / kColumns;
    const int rowHeight =
        (kFolder.height() - kTitle) / ((results.size() + kColumns - 1) / kColumns);
    for (int i = 0; i < results.size(); ++i) {
        const int column = i % kColumns;
        const int row = i / kColumns;
        const QRect cell(column * columnWidth, kTitle + row * rowHeight, columnWidth, rowHeight);
        Drawing::drawCentred(painter,
                             QPointF(cell.center().x(), cell.top() + 20 + kThumb.height() / 2.0),
                             Drawing::thumbnail(results.at(i), kThumb));
        painter.setFont(Drawing::font(18, false));
        painter.setPen(Qt::white);
        painter.drawText(cell.adjusted(0, 20 + kThumb.height() + 8, 0, 0),
                         Qt::AlignHCenter | Qt::AlignTop, QFileInfo(results.at(i)).fileName());
    }
    painter.setPen(QPen(QColor(110, 110, 110), 2));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(QRect(QPoint(0, 0), kFolder));
    return picture;
}
