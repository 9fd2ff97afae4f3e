#pragma once

#include <QDomNodeList>
#include <QList>
#include <QString>
#include <QWidget>

#include <memory>

class ClickableLabel;
class DrawingDownload;
class PartHarbor_2D;
class QButtonGroup;
class QComboBox;
class QLabel;
class QNetworkReply;
class QPixmap;
class QTableWidget;
class QTreeWidgetItem;
class TableItem;
class pvApplication_c;

namespace Ui
{
class PreviewUI;
}

/// The detail page of one model: its configuration, the choice of a drawing view and the preview, a click on
/// which starts a DrawingDownload. A left page stays hidden in the container until the
/// pane goes.
class PreviewUI : public QWidget
{
    Q_OBJECT

public:
    /// Resets the process-wide view choice to the detailed view.
    /// @param application the host; not owned.
    /// @param parent the container with its grid layout.
    PreviewUI(pvApplication_c* application, QWidget* parent);
    ~PreviewUI() override;

    /// Says which model the page is about; to be called before GetConfigInfo().
    void setModel(const QString& supplierName, const QString& modelName);
    /// Asks the service for the model's configurations. A box may open, during which the page may go.
    void GetConfigInfo();
    /// Takes the result row over and shows it. @param row must have left its former table.
    void showRow(TableItem* row);
    /// Shows the preview, scaled to its label. @param picture null gives a blank preview.
    void showPreview(const QPixmap& picture);

public slots:
    /// To be called once the page has been shown: lays it out, before it is painted.
    void settle();
    void CategoryButtonPressed(int id);
    /// Leaves for a new results page of the same search.
    void OnBackbuttonclicked();
    /// Stores the body; nothing is connected to it.
    void SetModelData(QNetworkReply* pReply);
    // A drawing's way is DrawingDownload's; these four hand on to it.
    void DragAndDrop(QNetworkReply* reply);
    /// Asks for the drawing of the chosen view; needs a logged-in user.
    void GetDownloadURL();
    void httpReadyRead();
    void httpDownloadFinished();
    /// A GetConfigInfo reply: shows the last configuration and asks for its parameters.
    void ConfigData(QNetworkReply* reply);
    /// A GetConfigParams reply: keeps the parameters, with the service's type names.
    void ConfigParamData(QNetworkReply* reply);
    /// Stores the wire value of a view's display text.
    void switchcall(const QString& text);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    /// Keeps from the preview the second press of a double click that opened the page.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// Hides the page for good. What only a shown page needs, its sections above all, is given back.
    void leave();
    void buildConfigureSection();
    void buildPreviewSection();
    void buildConfigTable(QWidget* section);

    QLabel* m_view = nullptr;
    QLabel* m_configuration = nullptr;
    QComboBox* m_viewComboBox = nullptr;
    QLabel* ConfigValueLabel = nullptr;
    ClickableLabel* m_preview_label = nullptr;
    QTableWidget* m_configTable = nullptr;
    QString m_configName;
    QDomNodeList m_inputParameters;
    std::unique_ptr<DrawingDownload> m_download;
    QButtonGroup* m_sectionButtons = nullptr;
    QList<QTreeWidgetItem*> m_sectionItems;
    std::unique_ptr<Ui::PreviewUI> m_form;
    PartHarbor_2D* m_resultsPage = nullptr;
    QWidget* m_parentWidget;
    pvApplication_c* m_application;
    QString m_modelData;
    QString m_supplierName;
    QString m_modelName;
};
