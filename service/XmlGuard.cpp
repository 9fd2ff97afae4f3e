#include "service/XmlGuard.h"

#include <QDomDocument>
#include <QStringView>

namespace
{

constexpr int MaximumDepth = 200;
constexpr int MaximumNodes = 500 * 1000;

/// What one piece of markup adds to a document.
struct Markup {
    qsizetype end; ///< index just behind it
    int nodes = 1;
    int levels = 0; ///< opened or, negative, closed
    bool isDeclaration = false;
};

/// Index just behind the next @p end, or behind the text where there is none.
qsizetype skipPast(QStringView text, qsizetype from, QStringView end)
{
    const qsizetype at = text.indexOf(end, from);
    return at < 0 ? text.size() : at + end.size();
}

/// A start tag or an empty element. Its quoted values may hold a ">" or a "=".
Markup readTag(QStringView text, qsizetype from)
{
    int attributes = 0;
    qsizetype i = from + 1;
    while (i < text.size() && text[i] != QLatin1Char('>')) {
        const QChar c = text[i++];
        if (c == QLatin1Char('"') || c == QLatin1Char('\''))
            i = skipPast(text, i, QStringView(&c, 1));
        else if (c == QLatin1Char('='))
            ++attributes;
    }
    const bool isEmptyElement = text[i - 1] == QLatin1Char('/');
    return {qMin(i + 1, text.size()), 1 + 2 * attributes, isEmptyElement ? 0 : 1}; // a value is a node too
}

Markup readMarkup(QStringView text, qsizetype from)
{
    const QStringView markup = text.mid(from);
    if (markup.startsWith(u"</"))
        return {skipPast(text, from, u">"), 0, -1};
    if (markup.startsWith(u"<!--"))
        return {skipPast(text, from + 4, u"-->")};
    if (markup.startsWith(u"<![CDATA["))
        return {skipPast(text, from + 9, u"]]>")};
    if (markup.startsWith(u"<?"))
        return {skipPast(text, from + 2, u"?>")};
    if (markup.startsWith(u"<!"))
        return {text.size(), 0, 0, true};
    return readTag(text, from);
}

/// A scan of the markup alone, without recursion. Malformed text may be counted wrongly only where the parser
/// stops at the same place.
bool isBearable(QStringView text)
{
    qsizetype nodes = text.count(QLatin1Char('&')); // each may be a node of its own
    int depth = 0;
    qsizetype end = 0;
    for (qsizetype i = text.indexOf(QLatin1Char('<')); i >= 0; i = text.indexOf(QLatin1Char('<'), end)) {
        const int textBefore = i > end ? 1 : 0;
        const Markup markup = readMarkup(text, i);
        nodes += markup.nodes + textBefore;
        depth += markup.levels;
        if (markup.isDeclaration || depth > MaximumDepth || nodes > MaximumNodes)
            return false;
        end = markup.end;
    }
    return true;
}

} // namespace

bool parseXml(const QString& text, QDomDocument* document)
{
    if (text.size() <= MaximumXmlLength && isBearable(text) && document->setContent(text))
        return true;
    document->clear(); // of what stood before the place where the parser gave up
    return false;
}
