#include "flow/XmlBounds.h"

#include <QString>

namespace
{

constexpr int kMaxDepth = 256;     // a flow has four levels; the reader's stack bears thousands
constexpr int kMaxNodes = 1 << 20; // some hundred bytes of memory each

/// Goes over a text in the steps of the XML reader. Up to the place where the reader would give a
/// malformed text up, both see the same; what comes later does not matter.
class Scan
{
public:
    explicit Scan(const QString& xml)
        : m_xml(xml)
    {
    }

    bool isWithinBounds()
    {
        while (m_at < m_xml.size() && m_isHarmless) {
            const QChar character = m_xml.at(m_at);
            // An entity that nobody has declared becomes a node as well.
            if (character == QLatin1Char('&')) {
                count();
            }
            if (character == QLatin1Char('<')) {
                count();
                passMarkup();
            } else {
                ++m_at;
            }
        }
        return m_isHarmless;
    }

private:
    void count() { m_isHarmless = m_isHarmless && ++m_nodes <= kMaxNodes; }

    bool opensWith(const char* mark) const
    {
        return m_xml.midRef(m_at).startsWith(QLatin1String(mark));
    }

    void passMarkup()
    {
        if (opensWith("<!--")) {
            passTo("<!--", "-->");
        } else if (opensWith("<![CDATA[")) {
            passTo("<![CDATA[", "]]>");
        } else if (opensWith("<?")) {
            passTo("<?", "?>");
        } else if (opensWith("<!")) {
            passDocumentType();
        } else if (opensWith("</")) {
            --m_depth;
            passTo("</", ">");
        } else {
            passStartTag();
        }
    }

    void passTo(const char* opening, const char* closing)
    {
        const QLatin1String end(closing);
        const int found = m_xml.indexOf(end, m_at + QLatin1String(opening).size());
        m_at = found < 0 ? m_xml.size() : found + end.size();
    }

    /// Names pass, also those of files, which the reader never opens. Entities are declared inside
    /// of brackets.
    void passDocumentType()
    {
        passToEndOfTag([this](QChar character) {
            m_isHarmless = m_isHarmless && character != QLatin1Char('[');
        });
    }

    void passStartTag()
    {
        QChar last;
        passToEndOfTag([this, &last](QChar character) {
            if (isQuote(character)) {
                count();
            }
            last = character;
        });
        if (last != QLatin1Char('/')) {
            m_isHarmless = m_isHarmless && ++m_depth <= kMaxDepth;
        }
    }

    static bool isQuote(QChar character)
    {
        return character == QLatin1Char('"') || character == QLatin1Char('\'');
    }

    /// Passes the next ">" that no quotes hide. Hands over what comes before it, of a text in
    /// quotes the first quote only.
    template <class Look> void passToEndOfTag(const Look& look)
    {
        QChar quote;
        for (++m_at; m_at < m_xml.size(); ++m_at) {
            const QChar character = m_xml.at(m_at);
            if (!quote.isNull()) {
                quote = character == quote ? QChar() : quote;
                continue;
            }
            if (character == QLatin1Char('>')) {
                break;
            }
            quote = isQuote(character) ? character : QChar();
            look(character);
        }
        ++m_at;
    }

    const QString& m_xml;
    int m_at = 0;
    int m_depth = 0;
    int m_nodes = 0;
    bool m_isHarmless = true;
};

} // namespace

bool isXmlWithinBounds(const QString& xml)
{
    return Scan(xml).isWithinBounds();
}
