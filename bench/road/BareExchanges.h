#pragma once

#include "bench/measuring/CatalogProcess.h"
#include "bench/measuring/Steps.h"

#include <QObject>

class QNetworkReply;

namespace bench
{

/// The floor: the same bytes as a user's steps bring, each with a fresh manager, documents and pictures
/// decoded, and nothing shown.
class BareExchanges final : public QObject
{
    Q_OBJECT

public:
    /// @param catalog has recorded each operation once.
    explicit BareExchanges(const CatalogProcess& catalog);

    /// A search and the pictures that it finds.
    StepTime search();
    /// A part's configurations, its parameters, and its picture.
    StepTime openPart();
    /// A download's address, and the drawing into a file.
    StepTime download();

private slots:
    void searchCame(QNetworkReply* reply);
    void pictureCame(QNetworkReply* reply);
    void configurationsCame(QNetworkReply* reply);
    void documentCame(QNetworkReply* reply);
    void downloadCame(QNetworkReply* reply);
    void drawingCame(QNetworkReply* reply);

private:
    void post(const RecordedPost& request, const char* replySlot);
    void get(const QUrl& url, const char* replySlot);
    StepTime measure(const char* what, const std::function<void()>& act);

    RecordedPost m_search;
    RecordedPost m_configurations;
    RecordedPost m_parameters;
    RecordedPost m_download;
    QUrl m_site;
    QUrl m_picture; ///< of the last search
    int m_pending = 0;
};

} // namespace bench
