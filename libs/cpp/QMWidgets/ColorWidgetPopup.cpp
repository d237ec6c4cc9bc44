#include "ColorWidgetPopup.h"

#include "GridKeys.h"

#include <QGridLayout>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>

namespace QMWidgets
{

namespace
{

constexpr int kRows = 6;
constexpr int kColumns = 8;
constexpr int kButtonSize = 20;
constexpr int kMarkSize = 8;

// Deliberate: the third colour of the last row leaves its column's pattern. Flows hold colours that
// were chosen here, so the palette stays as it is.
constexpr QRgb kPalette[kRows][kColumns] = {
    {0xffffff, 0xffc0c0, 0xffe0c0, 0xffffc0, 0xc0ffc0, 0xc0ffff, 0xc0c0ff, 0xffc0ff},
    {0xe0e0e0, 0xff8080, 0xffc080, 0xffff80, 0x80ff80, 0x80ffff, 0x8080ff, 0xff80ff},
    {0xc0c0c0, 0xff0000, 0xff8000, 0xffff00, 0x00ff00, 0x00ffff, 0x0000ff, 0xff00ff},
    {0x808080, 0xc00000, 0xc04000, 0xc0c000, 0x00c000, 0x00c0c0, 0x0000c0, 0xc000c0},
    {0x404040, 0x800000, 0x804000, 0x808000, 0x008000, 0x008080, 0x000080, 0x800080},
    {0x000000, 0x400000, 0x804040, 0x404000, 0x004000, 0x004040, 0x000040, 0x400040}};

/// A cell of the palette. That of the current colour is checked and carries a mark which is seen on
/// any colour.
class ColorCell : public QPushButton
{
public:
    explicit ColorCell(QWidget* parent)
        : QPushButton(parent)
    {
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPushButton::paintEvent(event);
        if (!isChecked()) {
            return;
        }
        QPainter painter(this);
        painter.fillRect(markRect(kMarkSize), Qt::white);
        painter.fillRect(markRect(kMarkSize - 2), Qt::black);
    }

private:
    QRect markRect(int size) const
    {
        return {(width() - size) / 2, (height() - size) / 2, size, size};
    }
};

QColor colorOf(const QPushButton* button)
{
    const QImage picture = button->icon().pixmap(kButtonSize, kButtonSize).toImage();
    return QColor(picture.pixel(0, 0));
}

QPushButton* makeCell(const QColor& color, QWidget* parent)
{
    auto* button = new ColorCell(parent);
    button->setFlat(true);
    button->setCheckable(true);
    button->setFixedSize(kButtonSize, kButtonSize);
    // So that Enter chooses as Space does.
    button->setAutoDefault(true);
    button->setAccessibleName(ColorWidgetPopup::caption(color));
    QPixmap picture(kButtonSize, kButtonSize);
    picture.fill(color);
    button->setIcon(QIcon(picture));
    return button;
}

} // namespace

ColorWidgetPopup::ColorWidgetPopup(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags)
{
    setWindowFlags(Qt::Popup);
    setObjectName(QStringLiteral("ColorWidgetPopup"));
    setAttribute(Qt::WA_StyledBackground, true); // or the style sheet's frame isn't drawn
    setAccessibleName(tr("Colors"));
    setMinimumSize(30, 15);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(5, 5, 5, 5);
    grid->setSpacing(2);
    for (int row = 0; row < kRows; ++row) {
        for (int column = 0; column < kColumns; ++column) {
            QPushButton* button = makeCell(QColor(kPalette[row][column]), this);
            connect(button, &QPushButton::clicked, this, &ColorWidgetPopup::slotColorChanged);
            grid->addWidget(button, row, column);
        }
    }
    new GridKeys(grid); // the popup owns it
}

QString ColorWidgetPopup::caption(const QColor& color)
{
    return tr("Color %1").arg(color.name());
}

void ColorWidgetPopup::setCurrentColor(const QColor& color)
{
    const auto cells = findChildren<QPushButton*>();
    QPushButton* current = cells.first();
    for (QPushButton* const cell : cells) {
        cell->setChecked(color.isValid() && colorOf(cell).rgb() == color.rgb());
        current = cell->isChecked() ? cell : current;
    }
    current->setFocus(Qt::PopupFocusReason);
}

void ColorWidgetPopup::slotColorChanged()
{
    if (const auto* button = qobject_cast<QPushButton*>(sender())) {
        emit colorChanged(colorOf(button));
    }
    m_mouseInside = false;
    hide();
}

void ColorWidgetPopup::mousePressEvent(QMouseEvent* event)
{
    // A press outside closes the popup and is then handed to the widget below. The swatch that
    // opened the popup would open it again at once, so for the swatch the press ends here.
    const QWidget* swatch = parentWidget();
    setAttribute(Qt::WA_NoMouseReplay,
                 swatch && swatch->rect().contains(swatch->mapFromGlobal(event->globalPos())));
    QWidget::mousePressEvent(event);
}

void ColorWidgetPopup::enterEvent(QEvent* event)
{
    m_mouseInside = true;
    QWidget::enterEvent(event);
}

void ColorWidgetPopup::leaveEvent(QEvent* event)
{
    m_mouseInside = false;
    hide();
    QWidget::leaveEvent(event);
}

} // namespace QMWidgets
