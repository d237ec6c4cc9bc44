#pragma once

#include <QLabel>

#include <memory>

class QScrollBar;
class QTextDocument;

namespace QMWidgets
{

/// A label that never cuts its text: a word wider than the label wraps anywhere, and a text higher
/// than the label scrolls, by the wheel or by the keys of its scroll bar, which Tab reaches. Plain
/// and rich text are distinguished as in QLabel.
class MessageText : public QLabel
{
    Q_OBJECT

public:
    MessageText(const QString& text, QWidget* parent);

    /// Wide enough for a line that is easy to read, and as high as the text is then.
    QSize sizeHint() const override;
    /// A few lines: the rest scrolls.
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    /// The text, laid out in lines of that width in pixels.
    std::unique_ptr<QTextDocument> documentOf(int width) const;
    /// The part of the contents that the scroll bar leaves to the text.
    QRect textRect() const;
    QSize frameSize() const;
    void placeScrollBar();

    QScrollBar* m_scrollBar;
};

} // namespace QMWidgets
