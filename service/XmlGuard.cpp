#include "service/XmlGuard.h"

#include <QDomDocument>
#include <QStringView>

#include <algorithm>
#include <cstddef>

namespace
{

constexpr int MaximumDepth = 200;
constexpr std::ptrdiff_t MaximumNodes = 500'000;
/// Any text may hold that many nodes; a longer one has to be as long as real replies are for theirs.
constexpr std::ptrdiff_t NodesAtAnyLength = 20'000;
constexpr std::ptrdiff_t CharactersPerNode = 8;

/// Goes over the markup alone, once and without recursion, and counts what it will become. Malformed text may
/// be counted wrongly only where the parser stops at the same place.
class MarkupScan
{
public:
    explicit MarkupScan(QStringView text)
        : m_next(text.begin()),
          m_end(text.end()),
          m_maximumNodes(
              std::min<std::ptrdiff_t>(MaximumNodes, NodesAtAnyLength + text.size() / CharactersPerNode)),
          m_nodes(entityReferences(text))
    {
    }

    bool isWithinLimits()
    {
        while (readText())
            if (!readMarkup() || m_depth > MaximumDepth || m_nodes > m_maximumNodes)
                return false;
        return true;
    }

private:
    std::ptrdiff_t entityReferences(QStringView text) const;
    bool readText();
    bool readMarkup();
    bool readSection();
    void readEndTag();
    void readTag();
    bool skip(QStringView expected);
    void skipPast(QStringView end);
    void skipPast(QChar end);

    const QChar* m_next;
    const QChar* m_end;
    std::ptrdiff_t m_maximumNodes;
    std::ptrdiff_t m_nodes;
    int m_depth = 0;
};

/// Each may be a node of its own. A text that is too short for too many nodes needs no count.
std::ptrdiff_t MarkupScan::entityReferences(QStringView text) const
{
    return text.size() > m_maximumNodes ? std::count(text.begin(), text.end(), QLatin1Char('&')) : 0;
}

/// Up to and with the next "<". @return false at the end.
bool MarkupScan::readText()
{
    const QChar* const start = m_next;
    m_next = std::find(m_next, m_end, QLatin1Char('<'));
    if (m_next == m_end)
        return false;
    if (m_next != start)
        ++m_nodes;
    ++m_next;
    return true;
}

/// What follows a "<". @return false for a declaration.
bool MarkupScan::readMarkup()
{
    const QChar kind = m_next != m_end ? *m_next : QChar();
    if (kind == QLatin1Char('/'))
        readEndTag();
    else if (kind == QLatin1Char('!') || kind == QLatin1Char('?'))
        return readSection();
    else
        readTag();
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
void MarkupScan::readTag()
{
    ++m_nodes;
    QChar last;
    while (m_next != m_end && *m_next != QLatin1Char('>')) {
        last = *m_next++;
        if (last > QLatin1Char('>'))
            continue; // most are letters
        if (last == QLatin1Char('"') || last == QLatin1Char('\''))
            skipPast(last);
        else if (last == QLatin1Char('='))
            m_nodes += 2; // an attribute and its value
    }
    if (m_next != m_end)
        ++m_next;
    if (last != QLatin1Char('/'))
        ++m_depth;
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
