#include "ContactSheet.h"

#include <QDir>
#include <QGuiApplication>
#include <QIcon>
#include <QMap>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>

namespace
{

const QColor kDesk(71, 71, 71);
constexpr int kWidth = 1180;
constexpr int kMargin = 14;
constexpr int kCaption = 16;
constexpr int kNarrowest = 92;

struct Picture {
    QString name;
    QPixmap pixmap;
    QSize size; ///< in device-independent pixels
};

using Row = QVector<Picture>;

QString groupOf(QString name)
{
    static const QRegularExpression states(QStringLiteral("_(hover|hvr|prs|chk|dis)"));
    static const QRegularExpression families(QStringLiteral("^(Icon|check|arrow|update|dart)"));
    const auto family = families.match(name);
    return family.hasMatch() ? family.captured() : name.remove(states);
}

/// A picture with a twin for dense screens has the size it is shown at; another has twice that.
Picture load(const QString& path, const QString& name)
{
    const bool hasTwin = QFile::exists(path + QStringLiteral("@2x.png"));
    const bool isMovie = !QFile::exists(path + QStringLiteral(".png"));
    const QPixmap single(path + (isMovie ? QStringLiteral(".gif") : QStringLiteral(".png")));
    const QSize size = hasTwin ? single.size() : single.size() / 2;
    const QPixmap pixmap = hasTwin ? QIcon(path + QStringLiteral(".png")).pixmap(size) : single;
    return {name, pixmap, size};
}

QMap<QString, Row> loadAll()
{
    QMap<QString, Row> rows;
    for (const QString& folder : {QStringLiteral(":/"), QStringLiteral(":/pix/")}) {
        const QStringList files = QDir(folder).entryList(
            {QStringLiteral("*.png"), QStringLiteral("*.gif")}, QDir::Files, QDir::Name);
        for (const QString& file : files) {
            const QString name = file.section(QLatin1Char('.'), 0, 0);
            if (!name.endsWith(QLatin1String("@2x"))) {
                rows[groupOf(name)].append(load(folder + name, name));
            }
        }
    }
    return rows;
}

/// Places all pictures, drawing them if there is a painter. Returns the height taken.
int layOut(const QMap<QString, Row>& rows, QPainter* painter)
{
    int x = kMargin;
    int y = kMargin;
    int height = 0;
    const auto breakLine = [&] {
        x = kMargin;
        y += height ? height + kCaption + kMargin : 0;
        height = 0;
    };
    for (const Row& row : rows) {
        const int wanted = row.size() * (qMax(row.first().size.width(), kNarrowest) + kMargin);
        if (x + wanted > kWidth) {
            breakLine();
        }
        for (const Picture& picture : row) {
            const int cell = qMax(picture.size.width(), kNarrowest) + kMargin;
            if (x > kMargin && x + cell > kWidth) {
                breakLine();
            }
            if (painter) {
                painter->drawPixmap(QRect(QPoint(x, y), picture.size), picture.pixmap);
                painter->drawText(QRect(x, y + picture.size.height(), cell, kCaption),
                                  Qt::AlignVCenter | Qt::TextDontClip, picture.name);
            }
            x += cell;
            height = qMax(height, picture.size.height());
        }
    }
    breakLine();
    return y;
}

} // namespace

QString writeContactSheet(const QString& folder)
{
    const QMap<QString, Row> rows = loadAll();
    const double ratio = qApp->devicePixelRatio();
    QImage sheet(QSize(kWidth, layOut(rows, nullptr)) * ratio, QImage::Format_RGB32);
    sheet.setDevicePixelRatio(ratio);
    sheet.fill(kDesk);
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.setPen(Qt::white);
    QFont font;
    font.setPixelSize(9);
    painter.setFont(font);
    layOut(rows, &painter);
    painter.end();
    const QString path = QDir(folder).filePath(QStringLiteral("contact-sheet.png"));
    return QDir().mkpath(folder) && sheet.save(path) ? QString()
                                                     : QStringLiteral("Can't write %1").arg(path);
}
