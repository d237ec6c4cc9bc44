#include "MessageText.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QTextDocument>
#include <QWheelEvent>

#include <cmath>

namespace QMWidgets
{

namespace
{

constexpr int kLettersInLine = 50;
constexpr int kLeastLetters = 16;
constexpr int kLeastLines = 3;

int heightOf(const QTextDocument& document)
{
    return int(std::ceil(document.size().height()));
}

} // namespace

MessageText::MessageText(const QString& text, QWidget* parent)
    : QLabel(text, parent),
      m_scrollBar(new QScrollBar(Qt::Vertical, this))
{
    setWordWrap(true);
    m_scrollBar->setFocusPolicy(Qt::StrongFocus);
    m_scrollBar->hide();
    connect(m_scrollBar, &QScrollBar::valueChanged, this, [this] { update(); });
}

std::unique_ptr<QTextDocument> MessageText::documentOf(int width) const
{
    auto document = std::make_unique<QTextDocument>();
    document->setDocumentMargin(0);
    document->setDefaultFont(font());
    if (Qt::mightBeRichText(text())) {
        document->setHtml(text());
    } else {
        document->setPlainText(text());
    }
    QTextOption option(QStyle::visualAlignment(layoutDirection(), alignment()) | Qt::AlignAbsolute);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    document->setDefaultTextOption(option);
    document->setTextWidth(width);
    return document;
}

QSize MessageText::frameSize() const
{
    const QMargins margins = contentsMargins();
    return {margins.left() + margins.right(), margins.top() + margins.bottom()};
}

QSize MessageText::sizeHint() const
{
    ensurePolished();
    const auto document = documentOf(kLettersInLine * fontMetrics().averageCharWidth());
    return QSize(int(std::ceil(document->idealWidth())), heightOf(*document)) + frameSize();
}

QSize MessageText::minimumSizeHint() const
{
    ensurePolished();
    return QSize(kLeastLetters * fontMetrics().averageCharWidth(),
                 kLeastLines * fontMetrics().lineSpacing()) +
           frameSize();
}

int MessageText::heightForWidth(int width) const
{
    ensurePolished();
    return heightOf(*documentOf(width - frameSize().width())) + frameSize().height();
}

QRect MessageText::textRect() const
{
    QRect rect = contentsRect();
    if (!m_scrollBar->isHidden()) {
        rect.setWidth(rect.width() - m_scrollBar->width());
        if (isRightToLeft()) {
            rect.translate(m_scrollBar->width(), 0);
        }
    }
    return rect;
}

void MessageText::placeScrollBar()
{
    const QRect contents = contentsRect();
    const bool scrolls = heightOf(*documentOf(contents.width())) > contents.height();
    m_scrollBar->setVisible(scrolls);
    if (!scrolls) {
        m_scrollBar->setRange(0, 0);
        return;
    }
    QRect place = contents;
    place.setWidth(m_scrollBar->sizeHint().width());
    m_scrollBar->setGeometry(QStyle::visualRect(
        layoutDirection(), contents, place.translated(contents.width() - place.width(), 0)));
    m_scrollBar->setRange(0, heightOf(*documentOf(textRect().width())) - contents.height());
    m_scrollBar->setPageStep(contents.height());
    m_scrollBar->setSingleStep(fontMetrics().lineSpacing());
}

void MessageText::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    const QRect rect = textRect();
    const auto document = documentOf(rect.width());
    // Centred from top to bottom, as in QLabel.
    const int above = qMax(0, (rect.height() - heightOf(*document)) / 2);
    QAbstractTextDocumentLayout::PaintContext context;
    context.palette = palette();
    context.palette.setColor(QPalette::Text, palette().color(foregroundRole()));
    QPainter painter(this);
    painter.setClipRect(rect);
    painter.translate(rect.left(), rect.top() + above - m_scrollBar->value());
    document->documentLayout()->draw(&painter, context);
}

void MessageText::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    placeScrollBar();
}

void MessageText::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::LayoutDirectionChange) {
        updateGeometry();
        placeScrollBar();
    }
}

void MessageText::wheelEvent(QWheelEvent* event)
{
    if (!m_scrollBar->isHidden()) {
        QCoreApplication::sendEvent(m_scrollBar, event);
    }
}

} // namespace QMWidgets
