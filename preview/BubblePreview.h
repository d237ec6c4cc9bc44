#pragma once

#include "preview/BubbleWindow.h"

class QPixmap;

namespace QMWidgets
{
class Label;
}

/// A bubble that shows one picture, as large as its size leaves room for.
class BubblePreview : public BubbleWindow
{
    Q_OBJECT

public:
    explicit BubblePreview(QWidget* parent);

    /// A null picture leaves the bubble empty.
    void setPixmap(const QPixmap& pixmap);

private:
    QMWidgets::Label* m_label;
};
