#pragma once

#include <QWidget>

#include <memory>

class PartHarbor_2D;
class PreviewUI;
class QImage;
class QNetworkReply;

namespace Ui
{
class TableItem;
}

/// One search result in a cell of the results table. Fetches its own thumbnail, a click on which opens the
/// detail page; the row moves into that page and belongs to it from then on. Its labels are also what the
/// detail page's requests name the part by (see shownText()).
class TableItem : public QWidget
{
    Q_OBJECT

public:
    /// @param page the results page that makes the row; not owned.
    TableItem(PartHarbor_2D* page, QWidget* parent);
    ~TableItem() override;

    void setSupplierName(const QString& name);
    /// Starts the download of the thumbnail. @param url absolute address.
    void setThumbnailUrl(const QString& url);
    void setModelName(const QString& name);
    void setDescription(const QString& description);
    /// @param index of the result in its page's lists, from 0.
    void setRowIndex(int index);
    void setCategory(const QString& category);

    /// Puts the row's controls behind another one in the tab order.
    /// @return the row's last control.
    QWidget* followInTabOrder(QWidget* previous);

public slots:
    /// The thumbnail's reply; bytes that are no picture give a blank icon.
    void Iamgedata(QNetworkReply* pReply);
    /// The preview's reply: shown on the detail page.
    void PreviewDownloaded(QNetworkReply* pReply);
    /// Opens the detail page, once.
    void Preview();

private slots:
    void showThumbnail(const QImage& image);
    void showPreview(const QImage& image);

private:
    int m_rowIndex = 0;
    std::unique_ptr<Ui::TableItem> m_form;
    PreviewUI* m_detailPage = nullptr;
    PartHarbor_2D* m_page;
};
