// Reading a page of hits from a reply's bytes, beside: document, one walk.

#include "service/XMLParser.h"

#include <benchmark/benchmark.h>

#include <QDomDocument>

#include <climits>
#include <string>

namespace
{

/// A search reply of the service's form: 20 fields to a hit.
QByteArray searchReply(int hits, int actualItemCount)
{
    QByteArray reply = "<?xml version=\"1.0\" encoding=\"utf-8\"?>\r\n"
                       "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>"
                       "<SimpleSearchAcrossCatalogsResponse><SimpleSearchAcrossCatalogsResult>"
                       "<ActualItemCount>" +
                       QByteArray::number(actualItemCount) + "</ActualItemCount><Items>";
    for (int hit = 0; hit < hits; ++hit) {
        reply += "<ISearchItem>";
        for (int field = 0; field < 20; ++field) {
            const QByteArray name = "SearchField" + QByteArray::number(field);
            reply += '<' + name + "> Text of field " + QByteArray::number(hit) + "</" + name + '>';
        }
        reply += "</ISearchItem>";
    }
    return reply + "</Items></SimpleSearchAcrossCatalogsResult></SimpleSearchAcrossCatalogsResponse>"
                   "</soap:Body></soap:Envelope>";
}

QVector<SearchHit> ours(const QByteArray& bytes, int limit)
{
    XMLParser parser;
    parser.setContent(QString::fromUtf8(bytes));
    return parser.GetSearchHits(qMin(parser.GetActualItemCount(), limit));
}

/// All that Qt takes for the same hits.
QVector<SearchHit> qtOnly(const QByteArray& bytes, int limit)
{
    QVector<SearchHit> hits;
    QDomDocument document;
    document.setContent(bytes);
    const QDomNodeList items = document.elementsByTagName(QLatin1String("ISearchItem"));
    for (int i = 0; i < qMin(items.count(), limit); ++i) {
        const QDomNodeList fields = items.item(i).childNodes();
        hits.append({fields.item(7).firstChild().nodeValue(), fields.item(16).firstChild().nodeValue(),
                     fields.item(0).firstChild().nodeValue(), fields.item(6).firstChild().nodeValue()});
    }
    return hits;
}

void add(const std::string& name, const QByteArray& reply, int limit)
{
    benchmark::RegisterBenchmark((name + "/ours").c_str(), [=](benchmark::State& state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(ours(reply, limit));
    });
    benchmark::RegisterBenchmark((name + "/floor").c_str(), [=](benchmark::State& state) {
        for (auto _ : state)
            benchmark::DoNotOptimize(qtOnly(reply, limit));
    });
}

} // namespace

void addReplyBenchmarks()
{
    add("page of 5 out of 60 hits", searchReply(5, 60), 50);
    add("page of 5 out of 10,000 hits", searchReply(5, 10000), 50);
    for (const int items : {500, 1000, 2000})
        add("reply of " + std::to_string(items) + " items", searchReply(items, items), INT_MAX);
}
