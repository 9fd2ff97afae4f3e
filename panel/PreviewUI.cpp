#include "panel/PreviewUI.h"

#include "panel/BackButton.h"
#include "panel/ClickableLabel.h"
#include "panel/DrawingDownload.h"
#include "panel/DrawingViews.h"
#include "panel/PartHarbor_2D.h"
#include "panel/PromptView.h"
#include "panel/QtCategoryButton.h"
#include "panel/RowHeights.h"
#include "panel/SectionFrame.h"
#include "panel/SectionTree.h"
#include "panel/SettledLayout.h"
#include "panel/ShownText.h"
#include "panel/TableItem.h"
#include "service/InputParameters.h"
#include "service/SessionValues.h"
#include "service/SoapReply.h"
#include "service/SoapRequest.h"
#include "service/Transfer.h"
#include "service/XMLParser.h"
#include "ui_PreviewUI.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QEvent>
#include <QHeaderView>
#include <QLabel>
#include <QPointer>
#include <QTableWidget>

namespace
{

// 129 is the value of Qt::AlignLeft | Qt::AlignVCenter, passed as the column span. One column or 129 look the
// same here.
constexpr int ColumnSpan = 129;

QGridLayout* createGrid(SectionFrame* section)
{
    auto* grid = new QGridLayout(section);
    grid->setContentsMargins(5, 3, 5, 3); // as the main panel's section; the result row needs the width
    grid->setVerticalSpacing(0);
    return grid;
}

void addToColumn(QGridLayout* grid, int row, QWidget* widget)
{
    widget->setMinimumHeight(25);
    widget->setMinimumWidth(40);
    grid->addWidget(widget, row, 0, 1, ColumnSpan);
}

/// Keeps a line's height for a label whose text comes later, or all below would have to move then.
void keepLineFree(QGridLayout* grid, int row, QLabel* label)
{
    const QString text = label->text();
    label->setText(QLatin1String(" "));
    grid->setRowMinimumHeight(row, label->sizeHint().height());
    label->setText(text);
}

QLabel* createCaption(const char* text, QWidget* section)
{
    auto* caption = new QLabel(QLatin1String(text), section);
    caption->setStyleSheet(QLatin1String("font-weight: bold;"));
    return caption;
}

} // namespace

PreviewUI::PreviewUI(pvApplication_c* application, QWidget* parent)
    : QWidget(parent),
      m_form(std::make_unique<Ui::PreviewUI>()),
      m_parentWidget(parent),
      m_application(application)
{
    m_form->setupUi(this);
    m_download = std::make_unique<DrawingDownload>(m_application, m_form->frame);
    g_drawingView = drawingViewTexts().constFirst();
    setUpBackButton(m_form->pushButton);
    m_sectionButtons = new QButtonGroup(this);
    prepareSectionTree(m_form->preview_page);
    buildConfigureSection();
    buildPreviewSection();

    connect(m_preview_label, SIGNAL(clicked()), this, SLOT(GetDownloadURL()));
    connect(m_sectionButtons, SIGNAL(buttonClicked(int)), this, SLOT(CategoryButtonPressed(int)));
    connect(m_form->pushButton, SIGNAL(clicked()), this, SLOT(OnBackbuttonclicked()));
    connect(m_viewComboBox, SIGNAL(currentIndexChanged(const QString&)), this,
            SLOT(switchcall(const QString&)));
}

PreviewUI::~PreviewUI() = default;

void PreviewUI::buildConfigureSection()
{
    const Section section = addSection(m_form->preview_page, QObject::tr("Configure"), frameGeometry());
    m_sectionButtons->addButton(section.header, m_sectionItems.size());
    m_sectionItems.append(section.item);

    auto* frame = new SectionFrame(m_form->preview_page);
    QGridLayout* grid = createGrid(frame);
    m_view = createCaption("View : ", frame);
    addToColumn(grid, 0, m_view);
    m_viewComboBox = new QComboBox(frame);
    m_viewComboBox->addItems(drawingViewTexts());
    m_viewComboBox->setAccessibleName(QLatin1String("View"));
    addToColumn(grid, 1, m_viewComboBox);
    m_configuration = createCaption("Configuration : ", frame);
    addToColumn(grid, 2, m_configuration);
    ConfigValueLabel = new QLabel(m_configName, frame);
    ConfigValueLabel->setFrameShape(QFrame::Box);
    ConfigValueLabel->setFrameShadow(QFrame::Sunken);
    ConfigValueLabel->setTextFormat(Qt::PlainText);
    ConfigValueLabel->setWordWrap(true);
    addToColumn(grid, 3, ConfigValueLabel);
    buildConfigTable(frame);
    grid->addWidget(m_configTable, 4, 0, 1, ColumnSpan);

    setSectionContent(section.item, frame);
    keepLineFree(grid, 3, ConfigValueLabel);
}

void PreviewUI::buildConfigTable(QWidget* section)
{
    m_configTable = new QTableWidget(1, 1, section);
    m_configTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_configTable->horizontalHeader()->hide();
    m_configTable->verticalHeader()->hide();
    m_configTable->setSelectionMode(QAbstractItemView::NoSelection);
    m_configTable->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_configTable->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    new PromptView(m_configTable);
    m_configTable->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff); // it is as high as its row
}

void PreviewUI::buildPreviewSection()
{
    const Section section = addSection(m_form->preview_page, QObject::tr("Preview"), frameGeometry());
    m_sectionButtons->addButton(section.header, m_sectionItems.size());
    m_sectionItems.append(section.item);

    auto* frame = new SectionFrame(m_form->preview_page);
    QGridLayout* grid = createGrid(frame);
    m_preview_label = new ClickableLabel(frame, Qt::WindowFlags());
    m_preview_label->setMinimumHeight(200);
    m_preview_label->setStyleSheet(QLatin1String("margin: 0px;")); // the frame's would distort the picture
    m_preview_label->installEventFilter(this);
    m_preview_label->setAccessibleName(QLatin1String("Preview: click to download the drawing"));
    grid->addWidget(m_preview_label, 0, 0, 1, ColumnSpan);

    setSectionContent(section.item, frame);
    frame->fillTree();
}

void PreviewUI::setModel(const QString& supplierName, const QString& modelName)
{
    m_supplierName = supplierName;
    m_modelName = modelName;
}

void PreviewUI::showRow(TableItem* row)
{
    auto* heights = new RowHeights(m_configTable);
    heights->watch(row);
    m_configTable->setCellWidget(0, 0, row);
    row->followInTabOrder(m_configTable);
}

void PreviewUI::showPreview(const QPixmap& picture)
{
    if (isHidden()) // left meanwhile, its sections gone
        return;
    if (picture.isNull()) {
        m_preview_label->clear();
        m_preview_label->setMinimumWidth(m_preview_label->width()); // there must be something to click on
    } else {
        const qreal ratio = m_preview_label->devicePixelRatioF();
        QPixmap scaled = picture.scaled(m_preview_label->size() * ratio, Qt::KeepAspectRatio);
        scaled.setDevicePixelRatio(ratio);
        m_preview_label->setPixmap(scaled);
    }
    m_preview_label->setScaledContents(true);
    m_preview_label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PreviewUI::settle()
{
    if (isHidden()) // left meanwhile, its sections gone
        return;
    const QPointer<QTableWidget> table(m_configTable); // the pane may go as the host lays out
    settleLayout(table);
    if (!table.isNull())
        QCoreApplication::sendPostedEvents(table->verticalHeader(), QEvent::MetaCall);
    if (!table.isNull())
        settleLayout(table);
    if (!table.isNull())
        QCoreApplication::sendPostedEvents(m_form->preview_page, QEvent::MetaCall);
}

void PreviewUI::CategoryButtonPressed(int id)
{
    toggleSection(m_sectionItems, *m_sectionButtons, id);
    repaint();
}

void PreviewUI::leave()
{
    hide();
    m_parentWidget->layout()->removeWidget(this); // as a results page
    m_sectionItems.clear();
    m_form->preview_page->clear();
    m_inputParameters = QDomNodeList();
}

void PreviewUI::OnBackbuttonclicked()
{
    leave();
    m_resultsPage = new PartHarbor_2D(m_application, m_parentWidget);

    const QPointer<PreviewUI> self(this);
    m_resultsPage->startSearch(); // may open a box, during which the pane may go
    if (self.isNull())
        return;
    m_parentWidget->layout()->addWidget(m_resultsPage);
    m_resultsPage->show();
    m_resultsPage->settle();
}

void PreviewUI::SetModelData(QNetworkReply* pReply)
{
    m_modelData = takeText(pReply);
}

void PreviewUI::GetConfigInfo()
{
    sendSoapRequest(GetConfigInfoOperation,
                    {{"apiKey", ApiKey}, {"supplierName", m_supplierName}, {"modelName", m_modelName}}, this,
                    SLOT(ConfigData(QNetworkReply*)));
}

void PreviewUI::ConfigData(QNetworkReply* reply)
{
    const QString text = takeText(reply);
    if (isHidden()) // left meanwhile, its sections gone
        return;
    const std::optional<SoapReply> answer = SoapReply::open(text);
    if (!answer)
        return;
    const QStringList names = configurationNames(answer->document());
    if (!names.isEmpty())
        m_configName = names.last();
    ConfigValueLabel->setText(shownText(m_configName));

    sendSoapRequest(GetConfigParamsOperation,
                    {{"apiKey", ApiKey},
                     {"supplierName", m_supplierName},
                     {"modelName", m_modelName},
                     {"configName", m_configName}},
                    this, SLOT(ConfigParamData(QNetworkReply*)));
}

void PreviewUI::ConfigParamData(QNetworkReply* reply)
{
    m_inputParameters = QDomNodeList();
    const QString text = takeText(reply);
    if (isHidden()) // left meanwhile, its sections gone
        return;
    const std::optional<SoapReply> answer = SoapReply::open(text);
    if (!answer)
        return;
    m_inputParameters =
        answer->document().elementsByTagName(QLatin1String(GetConfigParamsOperation.resultElement));
    setParameterTypes(m_inputParameters);
}

void PreviewUI::switchcall(const QString& text)
{
    g_drawingView = drawingViewWireValue(text);
}

void PreviewUI::GetDownloadURL()
{
    m_download->request({m_supplierName, m_modelName, m_configName});
}

void PreviewUI::DragAndDrop(QNetworkReply* reply)
{
    m_download->DragAndDrop(reply);
}

void PreviewUI::httpReadyRead()
{
    m_download->httpReadyRead();
}

void PreviewUI::httpDownloadFinished()
{
    m_download->httpDownloadFinished();
}

void PreviewUI::mouseReleaseEvent(QMouseEvent* /*event*/)
{
}

bool PreviewUI::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress)
        watched->removeEventFilter(this); // from here on double clicks are the preview's own
    return event->type() == QEvent::MouseButtonDblClick || QWidget::eventFilter(watched, event);
}
