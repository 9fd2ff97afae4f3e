#pragma once

#include "service/XMLParser.h"

#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <memory>

class PageButtonGroup;
class PV3DPartHarbor_2D;
class QAbstractButton;
class QGridLayout;
class QNetworkReply;
class PictureThread;
class PromptView;
class RowHeights;
class TableItem;
class pvApplication_c;

namespace Ui
{
class PartHarbor_2D;
}

/// The page button clicked last on any results page; null at start and once that page is gone. Written by
/// PartHarbor_2D::OnPushButtonClicked, read by nothing.
extern QPointer<QAbstractButton> LastPageButton;

/// A page of search results: five rows, a bar of page buttons and a back button. Left pages stay hidden and
/// empty in the container until the pane goes.
class PartHarbor_2D : public QWidget
{
    Q_OBJECT

public:
    /// @param application the host; not owned.
    /// @param parent the container with its grid layout.
    PartHarbor_2D(pvApplication_c* application, QWidget* parent);
    ~PartHarbor_2D() override;

    /// Prepares the table and sends the search for SearchTerm at CurrentPageNumber. Without an API key, or
    /// without the request's template, a box opens instead, during which the page may go.
    void startSearch();
    /// To be called when the page has been shown: lays it out at once, before it is painted.
    void settle();

    /// The last reply's document; a row looks its preview up in it.
    const XMLParser& parser() const { return *m_parser; }
    PictureThread& pictures() const { return *m_pictures; }
    pvApplication_c* application() const { return m_application; }
    /// The container that the page was made for.
    QWidget* container() const { return m_parentWidget; }
    /// Lets a row go to another table: this one forgets it.
    void releaseRow(TableItem* row);
    /// Hides the page for good. What only a shown page needs, its rows above all, is given back.
    void leave();

public slots:
    /// A search reply: shows its hits, whatever page they are of.
    void ModelData(QNetworkReply* reply);
    void ReleaseTask(int id);
    void OnPushButtonClicked(int id);
    void OnBackButtonClick();

private slots:
    void showRows();

private:
    void setUpPageButtons();
    void setUpStyleSheet();
    void sendSearch();
    void fillTable();
    void removeRows();
    void readResults();
    TableItem* addRow(int row);
    void relabel();

    QString m_category; // always empty
    std::unique_ptr<XMLParser> m_parser;
    QString m_replyText;
    QList<QString> m_thumbnailUrls;
    QList<QString> m_modelNames;
    QList<QString> m_supplierNames;
    QList<QString> m_descriptions;
    QList<QString> m_categories;
    pvApplication_c* m_application;
    std::unique_ptr<Ui::PartHarbor_2D> m_form;
    TableItem* m_lastRow = nullptr;
    QString m_pageNumber;
    PV3DPartHarbor_2D* m_newPanel = nullptr;
    QWidget* m_parentWidget;
    QGridLayout* m_parentLayout;
    std::unique_ptr<PageButtonGroup> m_pageButtons;
    QString m_releasedText;
    RowHeights* m_rowHeights = nullptr;
    PromptView* m_promptTable = nullptr;
    std::shared_ptr<PictureThread> m_pictures;
};
