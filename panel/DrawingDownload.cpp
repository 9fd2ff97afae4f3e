#include "panel/DrawingDownload.h"

#include "common/MessageBoxes.h"
#include "panel/DisabledFrame.h"
#include "panel/DownloadedFile.h"
#include "panel/DrawingViews.h"
#include "panel/PlacementQueue.h"
#include "service/SessionValues.h"
#include "service/SoapReply.h"
#include "service/SoapRequest.h"
#include "service/Transfer.h"

#include <QFile>
#include <QNetworkReply>
#include <QUrl>

namespace
{

/// What a drawing may bring, in bytes. Real ones have some hundred thousand.
constexpr qint64 MaximumDrawingBytes = 256'000'000;

/// A drawing comes from a web site: an address of another kind, such as a file's, fetches nothing.
QUrl webAddress(const QString& address)
{
    const QUrl url(address);
    const bool web = url.scheme() == QLatin1String("https") || url.scheme() == QLatin1String("http");
    return web ? url : QUrl();
}

} // namespace

DrawingDownload::DrawingDownload(pvApplication_c* application, QWidget* frame)
    : m_application(application), m_frame(frame)
{
}

DrawingDownload::~DrawingDownload()
{
    drop();
}

void DrawingDownload::request(const DrawnPart& part)
{
    if (UserToken.isEmpty()) {
        showErrorBox(QObject::tr("Please Login to 3DPH to Download."));
        return;
    }
    drop();
    const QPointer<DrawingDownload> self(this);
    QNetworkReply* reply = sendSoapRequest(GetDownload2DOperation,
                                           {{"apiKey", ApiKey},
                                            {"userToken", UserToken},
                                            {"supplierName", part.supplierName},
                                            {"modelName", part.modelName},
                                            {"configName", part.configName},
                                            {"version", QLatin1String("R2002")},
                                            {"units", QLatin1String("cm")},
                                            {"drawingView", drawingViewToRequest(g_drawingView)}},
                                           this, SLOT(DragAndDrop(QNetworkReply*)));
    if (!self.isNull())
        m_downloadReply = reply;
}

void DrawingDownload::DragAndDrop(QNetworkReply* reply)
{
    m_replyText = takeText(reply);
    m_downloadReply.clear();
    const std::optional<SoapReply> answer = SoapReply::open(m_replyText);
    if (!answer)
        return;
    const QString address = answer->result(GetDownload2DOperation.resultElement);
    if (address.isEmpty())
        showErrorBox(unsupportedViewMessage(g_drawingView));
    else
        startDownload(address);
}

void DrawingDownload::startDownload(const QString& address)
{
    const DisabledFrame disabled(m_frame);
    const QString fileName = fileNameOf(address);
    if (QFile::exists(fileName))
        QFile::remove(fileName);
    m_downloadFile = std::make_unique<DownloadedFile>(numberedFileName(fileName, g_downloadCounter));
    if (m_downloadFile->isOpen()) {
        m_downloadReply = getTransfer(webAddress(address), MaximumDrawingBytes, this, nullptr);
        connect(m_downloadReply, SIGNAL(readyRead()), this, SLOT(httpReadyRead()));
        connect(m_downloadReply, SIGNAL(finished()), this, SLOT(httpDownloadFinished()));
    }
    ++g_downloadCounter;
}

void DrawingDownload::httpReadyRead()
{
    if (m_downloadFile && !m_downloadFile->write(readTransfer(m_downloadReply)))
        drop();
}

void DrawingDownload::httpDownloadFinished()
{
    const bool tooLong = !m_downloadReply->isReadable(); // only the bound closes a reply
    releaseTransfer(m_downloadReply);                    // what it has that was not announced is not written
    m_downloadReply.clear();
    // The host reads the file by its path, so all of it has to be on the disk.
    if (tooLong || !m_downloadFile || !m_downloadFile->flush()) {
        m_downloadFile.reset();
        return;
    }
    m_insertPath = m_downloadFile->path();
    placeDrawing(std::move(m_downloadFile), m_application, this);
}

void DrawingDownload::drop()
{
    withdrawDrawing(this);
    dropTransfer(m_downloadReply);
    m_downloadReply.clear();
    m_downloadFile.reset();
}
