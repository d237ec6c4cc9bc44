#include "flow/nodes/MarkFontSize.h"

#include <QFontMetrics>

int markFontSize(QFont font, const QString& text, qint64 width)
{
    const auto isWider = [&](int size) {
        font.setPixelSize(size);
        return width < QFontMetrics(font).horizontalAdvance(text);
    };
    int upper = 2;
    while (!isWider(upper)) {
        if (upper >= kLargestMarkFontSize) {
            return 0;
        }
        upper *= 2;
    }
    // One by one and not by halves: with hinted or bitmap fonts a larger size may be narrower. Of
    // the two ends, the upper is known to be wider, and the lower, unless it is 1, not to be.
    for (int size = upper == 2 ? 1 : upper / 2 + 1; size < upper; ++size) {
        if (isWider(size)) {
            return size;
        }
    }
    return upper;
}
