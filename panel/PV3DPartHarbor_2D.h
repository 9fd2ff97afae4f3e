#pragma once

#include "service/DataStorage.h"

#include <QList>
#include <QWidget>

#include <memory>

class PartHarbor_2D;
class QButtonGroup;
class QLayout;
class QLineEdit;
class QNetworkReply;
class QPushButton;
class QtCategoryButton;
class QTreeWidgetItem;
class pvApplication_c;

namespace Ui
{
class PartHarbor_2DMain;
}

/// The main panel: a "Search" section with the search line. A search hides it and puts a results page into
/// its place; it is never shown again and lives as long as the pane.
///
/// The panel swallows every event of its own, so nothing that is posted to it arrives: neither deleteLater
/// nor a queued call.
class PV3DPartHarbor_2D : public QWidget
{
    Q_OBJECT

public:
    /// @param application the host; not owned.
    /// @param parent the container, whose layout the panel is to be added to.
    PV3DPartHarbor_2D(pvApplication_c* application, QWidget* parent);
    ~PV3DPartHarbor_2D() override;

signals:
    /// A left press that reached mousePressEvent; the ordinary dispatch never gets there.
    void clicked();
    /// Never emitted.
    void SendData();

public slots:
    /// Toggles the section with that id.
    void CategoryButtonPressed(int id);
    /// Starts a search for the search line's text; an empty one is refused.
    void on_line_edit();
    void SetAccessToken(QNetworkReply* reply);
    void GetAPIKey(QNetworkReply* reply);
    void SetModelData(QNetworkReply* reply);

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    void buildPanel();
    void buildSearchRow();
    void startSearch();
    /// Gives back what only a shown panel needs, its section above all.
    void leave();

    PartHarbor_2D* m_resultsPage = nullptr;
    pvApplication_c* m_application;
    QLayout* m_parentLayout = nullptr;
    DataStorage m_session;
    std::unique_ptr<Ui::PartHarbor_2DMain> m_form;
    QTreeWidgetItem* m_searchItem = nullptr;
    QtCategoryButton* m_searchHeader = nullptr;
    QButtonGroup* m_sectionButtons = nullptr;
    std::unique_ptr<QList<QTreeWidgetItem*>> m_sectionItems;
    QLineEdit* m_searchLine = nullptr;
    QPushButton* m_searchButton = nullptr;
    bool m_starting = false; // on_line_edit is running
};
