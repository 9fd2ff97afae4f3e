#include "service/XmlGuard.h"

#include <QDomDocument>
#include <QStringView>

#include <algorithm>
#include <cstddef>

namespace
{

constexpr int MaximumDepth = 200;
constexpr int MaximumAttributes = 100;
constexpr std::ptrdiff_t MaximumNodes = 500'000;
/// Any text may hold that many nodes; a longer one has to be as long as real replies are for theirs.
constexpr std::ptrdiff_t NodesAtAnyLength = 50'000;
constexpr std::ptrdiff_t CharactersPerNode = 8;

bool isWhiteSpace(QChar character)
{
    return character <= QLatin1Char(' ') &&
           (character == QLatin1Char(' ') || character == QLatin1Char('\n') ||
            character == QLatin1Char('\r') || character == QLatin1Char('\t'));
}

/// Whether what stands behind a "&" is a character, by number or by a name that XML itself has.
bool isCharacterReference(QStringView text)
{
    for (const QStringView known : {u"#", u"lt;", u"gt;", u"amp;", u"quot;", u"apos;"})
        if (text.startsWith(known))
            return true;
    return false;
}

/// Goes over the text once, without recursion, and counts what it will become. Malformed text may be counted
/// wrongly only where the parser stops at the same place.
class MarkupScan
{
public:
    explicit MarkupScan(QStringView text)
        : m_next(text.begin()),
          m_end(text.end()),
          m_maximumNodes(
              std::min<std::ptrdiff_t>(MaximumNodes, NodesAtAnyLength + text.size() / CharactersPerNode)),
          m_countsEntities(text.size() > m_maximumNodes)
    {
    }

    bool isWithinLimits()
    {
        while (readText())
            if (!readMarkup() || m_depth > MaximumDepth || m_nodes > m_maximumNodes)
                return false;
        return m_nodes <= m_maximumNodes;
    }

private:
    bool readText();
    void countEntities(const QChar* text);
    bool readMarkup();
    bool readSection();
    void readEndTag();
    bool readTag();
    bool skip(QStringView expected);
    void skipPast(QStringView end);
    void skipPast(QChar end);

    const QChar* m_next;
    const QChar* m_end;
    std::ptrdiff_t m_maximumNodes;
    bool m_countsEntities; ///< a text that is too short for too many nodes needs no count
    std::ptrdiff_t m_nodes = 0;
    int m_depth = 0;
};

/// Up to and with the next "<". @return false at the end.
bool MarkupScan::readText()
{
    const QChar* const start = std::find_if_not(m_next, m_end, isWhiteSpace); // alone it makes no node
    m_next = std::find(start, m_end, QLatin1Char('<'));
    if (m_next != start)
        ++m_nodes;
    if (m_countsEntities)
        countEntities(start);
    if (m_next == m_end)
        return false;
    ++m_next;
    return true;
}

/// An entity that XML does not know makes a node, and parts the text before it from the text behind it.
void MarkupScan::countEntities(const QChar* text)
{
    while ((text = std::find(text, m_next, QLatin1Char('&'))) != m_next)
        if (!isCharacterReference(QStringView(++text, m_next)))
            m_nodes += 2;
}

/// What follows a "<". @return false for a declaration, and for a tag of too many attributes.
bool MarkupScan::readMarkup()
{
    const QChar kind = m_next != m_end ? *m_next : QChar();
    if (kind == QLatin1Char('/'))
        readEndTag();
    else if (kind == QLatin1Char('!') || kind == QLatin1Char('?'))
        return readSection();
    else
        return readTag();
    return true;
}

/// A comment, a section or an instruction. @return false for a declaration.
bool MarkupScan::readSection()
{
    ++m_nodes;
    if (skip(u"!--"))
        skipPast(u"-->");
    else if (skip(u"![CDATA["))
        skipPast(u"]]>");
    else if (skip(u"?"))
        skipPast(u"?>");
    else
        return false;
    return true;
}

void MarkupScan::readEndTag()
{
    --m_depth;
    skipPast(QLatin1Char('>'));
}

/// A start tag or an empty element. Its quoted values may hold a ">" or a "=".
/// @return false for too many attributes.
bool MarkupScan::readTag()
{
    int attributes = 0;
    QChar last;
    while (m_next != m_end && *m_next != QLatin1Char('>')) {
        last = *m_next++;
        if (last > QLatin1Char('>'))
            continue; // most are letters
        if (last == QLatin1Char('"') || last == QLatin1Char('\''))
            skipPast(last);
        else if (last == QLatin1Char('='))
            ++attributes;
    }
    if (m_next != m_end)
        ++m_next;
    if (last != QLatin1Char('/'))
        ++m_depth;
    ++m_nodes;
    if (attributes > 0)
        m_nodes += 2 * attributes + 1; // name and value, and the table of an element that has any
    return attributes <= MaximumAttributes;
}

bool MarkupScan::skip(QStringView expected)
{
    if (m_end - m_next < expected.size() || !std::equal(expected.begin(), expected.end(), m_next))
        return false;
    m_next += expected.size();
    return true;
}

void MarkupScan::skipPast(QStringView end)
{
    m_next = std::search(m_next, m_end, end.begin(), end.end());
    m_next += std::min<std::ptrdiff_t>(end.size(), m_end - m_next);
}

void MarkupScan::skipPast(QChar end)
{
    m_next = std::find(m_next, m_end, end);
    if (m_next != m_end)
        ++m_next;
}

} // namespace

bool parseXml(const QString& text, QDomDocument* document)
{
    if (text.size() <= MaximumXmlLength && MarkupScan(text).isWithinLimits() && document->setContent(text))
        return true;
    document->clear(); // of what stood before the place where the parser gave up
    return false;
}
