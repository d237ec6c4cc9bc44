#include "flow/nodes/MarkFontSize.h"

#include <algorithm>
#include <QFontMetrics>
#include <QGlyphRun>
#include <QRawFont>
#include <QTextLayout>

namespace
{

/// Up to here fonts have bitmaps, widths of their own for single sizes, and emboldening that ends
/// at this size: widths follow no rule.
constexpr int kLastIrregularSize = 64;
/// How much wider a glyph of an outline font may be than its share. Advances are rounded to whole
/// pixels, with hinting in whichever way the font likes. The most that was seen is 0.85 pixels, in
/// 32 families of each style and each kind of hinting.
constexpr qint64 kSlack = 4;

struct Measured {
    int size;
    qint64 width;
};

/// Whether each glyph has a width of its own wherever it stands. A tab reaches for the next stop.
bool isPlain(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar character) {
        return character.category() == QChar::Other_Control ||
               character.category() == QChar::Separator_Line ||
               character.category() == QChar::Separator_Paragraph ||
               character == QChar::ObjectReplacementCharacter;
    });
}

/// Whether all glyphs are outlines at all sizes. Fonts of which that can't be told are not.
bool isOutlineFont(const QRawFont& font)
{
    const auto has = [&font](const char* table) {
        return !font.fontTable(table).isEmpty();
    };
    const bool hasBitmaps = has("EBLC") || has("CBLC") || has("sbix");
    return !hasBitmaps && (has("loca") || has("CFF ") || has("CFF2"));
}

/// How many glyphs the text is set in, the fonts that step in for missing letters included. Errors:
/// -1 if not all of them grow in proportion.
int countOutlines(const QFont& font, const QString& text)
{
    if (!isPlain(text)) {
        return -1;
    }
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    int count = 0;
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (!isOutlineFont(run.rawFont())) {
            return -1;
        }
        count += run.glyphIndexes().size();
    }
    return count;
}

/// The first size after `lower` at which the text can be wider than `width`: with outlines the
/// widths keep to the line between both ends but for some pixels for each glyph.
int firstPossible(QFont font, const QString& text, qint64 width, const Measured& lower,
                  const Measured& upper)
{
    const int next = lower.size + 1;
    if (lower.size < kLastIrregularSize) {
        return next;
    }
    font.setPixelSize(upper.size);
    const int glyphs = countOutlines(font, text);
    const qint64 slack = kSlack * glyphs;
    if (glyphs < 0 || qAbs(upper.width - 2 * lower.width) > slack) {
        return next;
    }
    const qint64 missing = width - slack - lower.width;
    const qint64 steps = missing * (upper.size - lower.size) / (upper.width - lower.width);
    return int(qMax<qint64>(next, lower.size + steps));
}

} // namespace

int markFontSize(QFont font, const QString& text, qint64 width)
{
    const auto measure = [&](int size) {
        font.setPixelSize(size);
        return Measured{size, QFontMetrics(font).horizontalAdvance(text)};
    };
    Measured lower{1, 0};
    Measured upper = measure(2);
    while (width >= upper.width) {
        if (upper.size >= kLargestMarkFontSize) {
            return 0;
        }
        lower = upper;
        upper = measure(2 * upper.size);
    }
    if (upper.size == 2) {
        return width < measure(1).width ? 1 : 2;
    }
    // One by one and not by halves: with hinted or bitmap fonts a larger size may be narrower. Of
    // the two ends, the upper is known to be wider, and the lower not to be.
    for (int size = firstPossible(font, text, width, lower, upper); size < upper.size; ++size) {
        if (width < measure(size).width) {
            return size;
        }
    }
    return upper.size;
}
