#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <memory>

class DownloadedFile;
class QNetworkReply;
class QWidget;
class pvApplication_c;

/// The part, in one configuration, that a drawing is wanted of; the service's own texts.
struct DrawnPart {
    QString supplierName;
    QString modelName;
    QString configName;
};

/// The way of one drawing, from a click on the preview to the block in the active document: the request, the
/// address in its reply, the file, the turn at the host's prompt, the insertion. A newer request takes the
/// place of an older one. Owned by the detail page; what is under way when it goes is dropped, its file
/// removed.
class DrawingDownload : public QObject
{
    Q_OBJECT

public:
    /// @param application the host; may be null; not owned.
    /// @param frame disabled while the file is being made; not owned.
    DrawingDownload(pvApplication_c* application, QWidget* frame);
    ~DrawingDownload() override;

    /// Asks for the drawing of the process-wide view. Without a logged-in user a box opens instead, during
    /// which the page may go.
    void request(const DrawnPart& part);

public slots:
    /// A GetDownload2D reply: starts the download, or says that there is no drawing for the view.
    void DragAndDrop(QNetworkReply* reply);
    /// Writes what has come. A drawing that is too long, or that the disk does not take, is dropped without a
    /// word.
    void httpReadyRead();
    /// Hands the file to the host's prompt, whatever the network has left of it.
    void httpDownloadFinished();

private:
    void startDownload(const QString& address);
    void drop();

    pvApplication_c* m_application;
    QWidget* m_frame;
    QString m_replyText;                     // of the last GetDownload2D reply
    QPointer<QNetworkReply> m_downloadReply; // of the request for a drawing, then of the drawing itself
    std::unique_ptr<DownloadedFile> m_downloadFile;
    QString m_insertPath;
};
