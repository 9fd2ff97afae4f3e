#include "service/XmlGuard.h"

#include <QDomDocument>
#include <QStringView>

namespace
{

constexpr int MaximumDepth = 200;
constexpr int MaximumLength = 32 * 1000 * 1000;

/// Index just behind the next @p end, or behind the text where there is none.
int skipPast(QStringView text, int from, QLatin1String end)
{
    const auto at = text.indexOf(end, from);
    return static_cast<int>(at < 0 ? text.size() : at + end.size());
}

/// Whether the tag that starts at @p from ends in "/>". Quoted values may hold a ">".
bool isEmptyElement(QStringView text, int from, int* end)
{
    QChar quote;
    int i = from;
    for (; i < text.size(); ++i) {
        const QChar c = text[i];
        if (!quote.isNull()) {
            if (c == quote)
                quote = QChar();
        } else if (c == QLatin1Char('"') || c == QLatin1Char('\'')) {
            quote = c;
        } else if (c == QLatin1Char('>')) {
            break;
        }
    }
    *end = i;
    return i < text.size() && text[i - 1] == QLatin1Char('/');
}

/// A scan of the markup alone, without recursion. Malformed text may be counted wrongly only where the parser
/// stops at the same place.
bool isBearable(QStringView text)
{
    int depth = 0;
    for (int i = static_cast<int>(text.indexOf(QLatin1Char('<'))); i >= 0;
         i = static_cast<int>(text.indexOf(QLatin1Char('<'), i))) {
        const QStringView markup = text.mid(i);
        if (markup.startsWith(QLatin1String("<!--"))) {
            i = skipPast(text, i + 4, QLatin1String("-->"));
        } else if (markup.startsWith(QLatin1String("<![CDATA["))) {
            i = skipPast(text, i + 9, QLatin1String("]]>"));
        } else if (markup.startsWith(QLatin1String("<!"))) {
            return false;
        } else if (markup.startsWith(QLatin1String("<?"))) {
            i = skipPast(text, i + 2, QLatin1String("?>"));
        } else if (markup.startsWith(QLatin1String("</"))) {
            --depth;
            ++i;
        } else {
            if (!isEmptyElement(text, i + 1, &i) && ++depth > MaximumDepth)
                return false;
        }
    }
    return true;
}

} // namespace

bool parseXml(const QString& text, QDomDocument* document)
{
    if (text.size() > MaximumLength || !isBearable(text)) {
        document->clear();
        return false;
    }
    return document->setContent(text);
}
