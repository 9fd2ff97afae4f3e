#include "bench/road/BareExchanges.h"

#include <QDomDocument>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPixmap>

namespace bench
{

namespace
{

constexpr int ImageField = 7; ///< of a hit: the address of its picture, below the site's

/// Takes the reply's bytes; manager and reply go through the event loop.
QByteArray take(QNetworkReply* reply)
{
    reply->manager()->deleteLater();
    if (reply->error() != QNetworkReply::NoError)
        giveUp("A bare exchange failed: " + reply->errorString());
    return reply->readAll();
}

QDomDocument takeDocument(QNetworkReply* reply)
{
    QDomDocument document;
    document.setContent(take(reply));
    return document;
}

} // namespace

BareExchanges::BareExchanges(const CatalogProcess& catalog)
    : m_search(catalog.recorded("SimpleSearchAcrossCatalogs")),
      m_configurations(catalog.recorded("GetConfigInfo")),
      m_parameters(catalog.recorded("GetConfigParams")),
      m_download(catalog.recorded("GetDownload2D")),
      m_site(m_search.url.resolved(QUrl("/")))
{
}

StepTime BareExchanges::search()
{
    return measure("a bare search", [this] { post(m_search, SLOT(searchCame(QNetworkReply*))); });
}

StepTime BareExchanges::openPart()
{
    return measure("a bare part", [this] {
        post(m_configurations, SLOT(configurationsCame(QNetworkReply*)));
        get(m_picture, SLOT(pictureCame(QNetworkReply*)));
    });
}

StepTime BareExchanges::download()
{
    return measure("a bare download", [this] { post(m_download, SLOT(downloadCame(QNetworkReply*))); });
}

StepTime BareExchanges::measure(const char* what, const std::function<void()>& act)
{
    return measureStep(what, act, [this] { return m_pending == 0; });
}

void BareExchanges::post(const RecordedPost& request, const char* replySlot)
{
    ++m_pending;
    QNetworkRequest headers(request.url);
    headers.setRawHeader("Content-Type", "text/xml; charset=utf-8");
    headers.setRawHeader("SOAPAction", request.action);
    auto* manager = new QNetworkAccessManager;
    connect(manager, SIGNAL(finished(QNetworkReply*)), this, replySlot);
    manager->post(headers, request.body);
}

void BareExchanges::get(const QUrl& url, const char* replySlot)
{
    ++m_pending;
    auto* manager = new QNetworkAccessManager;
    connect(manager, SIGNAL(finished(QNetworkReply*)), this, replySlot);
    manager->get(QNetworkRequest(url));
}

void BareExchanges::searchCame(QNetworkReply* reply)
{
    const QDomDocument document = takeDocument(reply);
    const QDomNodeList items = document.elementsByTagName("ISearchItem");
    for (int i = 0; i < items.count(); ++i) {
        const QString address = items.item(i).childNodes().item(ImageField).toElement().text();
        const QUrl picture = m_site.resolved(QUrl(address));
        if (i == 0)
            m_picture = picture;
        get(picture, SLOT(pictureCame(QNetworkReply*)));
    }
    --m_pending;
}

void BareExchanges::pictureCame(QNetworkReply* reply)
{
    QPixmap picture;
    if (!picture.loadFromData(take(reply)))
        giveUp("A bare exchange brought no picture.");
    --m_pending;
}

void BareExchanges::configurationsCame(QNetworkReply* reply)
{
    takeDocument(reply);
    post(m_parameters, SLOT(documentCame(QNetworkReply*)));
    --m_pending;
}

void BareExchanges::documentCame(QNetworkReply* reply)
{
    takeDocument(reply);
    --m_pending;
}

void BareExchanges::downloadCame(QNetworkReply* reply)
{
    const QString address =
        takeDocument(reply).elementsByTagName("GetDownload2DResult").item(0).toElement().text();
    get(QUrl(address), SLOT(drawingCame(QNetworkReply*)));
    --m_pending;
}

void BareExchanges::drawingCame(QNetworkReply* reply)
{
    QFile file("bare.dwg");
    if (!file.open(QIODevice::WriteOnly) || file.write(take(reply)) <= 0)
        giveUp("A bare exchange brought no drawing.");
    file.remove();
    --m_pending;
}

} // namespace bench
