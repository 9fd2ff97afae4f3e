#include "panel/PartHarbor_2D.h"

#include "common/DarkTheme.h"
#include "common/MessageBoxes.h"
#include "panel/BackButton.h"
#include "panel/PV3DPartHarbor_2D.h"
#include "panel/PageButtonGroup.h"
#include "panel/PromptView.h"
#include "panel/RowHeights.h"
#include "panel/SettledLayout.h"
#include "panel/TableItem.h"
#include "service/PictureThread.h"
#include "service/SessionValues.h"
#include "service/SoapReply.h"
#include "service/SoapRequest.h"
#include "service/Transfer.h"
#include "ui_PartHarbor_2D.h"

#include <QAbstractButton>
#include <QFile>
#include <QGridLayout>

QPointer<QAbstractButton> LastPageButton;

namespace
{

constexpr int ShownRows = 5;
/// Rows made from one reply at the most: each has a network manager, and each manager a thread.
constexpr int MaximumRows = 50;

} // namespace

PartHarbor_2D::PartHarbor_2D(pvApplication_c* application, QWidget* parent)
    : QWidget(parent),
      m_application(application),
      m_form(std::make_unique<Ui::PartHarbor_2D>()),
      m_parentWidget(parent),
      m_parentLayout(qobject_cast<QGridLayout*>(parent->layout())),
      m_pageButtons(std::make_unique<PageButtonGroup>()),
      m_pictures(PictureThread::shared())
{
    m_form->setupUi(this);
    m_rowHeights = new RowHeights(m_form->tableWidget);
    m_promptTable = new PromptView(m_form->tableWidget);
    setUpBackButton(m_form->pushButton);
    setUpPageButtons();
    m_parser = std::make_unique<XMLParser>();

    connect(m_form->pushButton, SIGNAL(clicked()), this, SLOT(OnBackButtonClick()));
    connect(m_pageButtons.get(), SIGNAL(buttonClicked(int)), this, SLOT(OnPushButtonClicked(int)));
    connect(m_pageButtons.get(), SIGNAL(buttonReleased(int)), this, SLOT(ReleaseTask(int)));
    setUpStyleSheet();
}

PartHarbor_2D::~PartHarbor_2D() = default;

void PartHarbor_2D::setUpPageButtons()
{
    m_form->pushButton6->setEnabled(false);
    m_pageButtons->addButton(m_form->next_pushButton, 0);
    m_pageButtons->addButton(m_form->pushButton1, 1);
    m_pageButtons->addButton(m_form->pushButton2, 2);
    m_pageButtons->addButton(m_form->pushButton3, 3);
    m_pageButtons->addButton(m_form->pushButton4, 4);
    m_pageButtons->addButton(m_form->pushButton5, 5);
    m_pageButtons->addButton(m_form->pushButton6, 6);
    m_pageButtons->addButton(m_form->pushButton7, 7);
    m_pageButtons->addButton(m_form->prev_pushButton, 7); // shares its id with "200"
}

void PartHarbor_2D::setUpStyleSheet()
{
    // The bundle holds nothing below ":/Images": the page looks as the host's own style has it, in either
    // theme, unless the host process registers sheets there.
    QFile file(isDarkTheme(m_application) ? QLatin1String(":/Images/Resources/PV3DPartHarborDarkMode.qss")
                                          : QLatin1String(":/Images/Resources/PV3DPartHarbor.qss"));
    QByteArray sheet;
    if (file.open(QIODevice::ReadOnly))
        sheet = file.readAll();
    setStyleSheet(QString::fromUtf8(sheet));
}

void PartHarbor_2D::startSearch()
{
    QTableWidget* table = m_form->tableWidget;
    table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    table->setAutoScroll(true);
    table->setSelectionMode(QAbstractItemView::NoSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setRowCount(ShownRows);
    table->setColumnCount(1);
    m_pageNumber = CurrentPageNumber;
    sendSearch();
}

void PartHarbor_2D::sendSearch()
{
    if (ApiKey.isEmpty()) {
        showErrorBox(QObject::tr("Server was unable to process request. Invalid key string."));
        return;
    }
    sendSoapRequest(SearchOperation,
                    {{"apiKey", ApiKey}, {"searchTerm", SearchTerm}, {"pageNumber", m_pageNumber}}, this,
                    SLOT(ModelData(QNetworkReply*)));
}

void PartHarbor_2D::ModelData(QNetworkReply* reply)
{
    if (isHidden()) { // left meanwhile
        releaseTransfer(reply);
        return;
    }
    m_replyText = takeText(reply);
    m_parser->setContent(m_replyText);
    fillTable();
}

void PartHarbor_2D::fillTable()
{
    removeRows();
    readResults();
    // Hidden, the rows are laid out once, when all are there. A description shown while it is still too low
    // would also scroll to its cursor, and stay cut off at the top.
    m_form->tableWidget->viewport()->hide();
    QWidget* control = m_form->tableWidget;
    for (int row = 0; row < m_modelNames.size(); ++row)
        control = addRow(row)->followInTabOrder(control);
    // In an event of its own, so that none takes long. It comes before the page is painted all the same.
    QMetaObject::invokeMethod(this, "showRows", Qt::QueuedConnection);
}

void PartHarbor_2D::showRows()
{
    if (isHidden()) // left meanwhile
        return;
    m_rowHeights->fit();
    m_form->tableWidget->viewport()->show();
    settle();
}

void PartHarbor_2D::settle()
{
    m_form->tableWidget->doItemsLayout();
    const QPointer<PromptView> table(m_promptTable);
    settleLayout(m_form->tableWidget->viewport());
    if (!table.isNull()) // the pane may have gone
        table->follow();
}

void PartHarbor_2D::removeRows()
{
    // Rows beyond the table belong to the page alone.
    for (TableItem* row : findChildren<TableItem*>(QString(), Qt::FindDirectChildrenOnly))
        row->deleteLater();
    m_form->tableWidget->clear();
    m_lastRow = nullptr;
}

void PartHarbor_2D::readResults()
{
    for (QList<QString>* list :
         {&m_thumbnailUrls, &m_supplierNames, &m_modelNames, &m_descriptions, &m_categories})
        list->clear();
    for (const SearchHit& hit : m_parser->GetSearchHits(qMin(m_parser->GetActualItemCount(), MaximumRows))) {
        m_thumbnailUrls.append(hit.imageUrl);
        m_supplierNames.append(hit.supplierName);
        m_modelNames.append(hit.modelName);
        m_descriptions.append(hit.description.isEmpty() ? QLatin1String("None Provided") : hit.description);
        m_categories.append(m_category);
    }
}

TableItem* PartHarbor_2D::addRow(int row)
{
    auto* item = new TableItem(this, this);
    item->setSupplierName(m_supplierNames[row]);
    item->setThumbnailUrl(m_thumbnailUrls[row]);
    item->setModelName(m_modelNames[row]);
    item->setDescription(m_descriptions[row]);
    item->setRowIndex(row);
    item->setCategory(m_categories[row]);
    if (row < m_form->tableWidget->rowCount()) {
        m_rowHeights->watch(item);
        m_form->tableWidget->setCellWidget(row, 0, item);
    } else {
        item->hide(); // it has no cell, and would show up in the page's corner
    }
    m_lastRow = item;
    return item;
}

void PartHarbor_2D::releaseRow(TableItem* row)
{
    // The table keeps a cell widget on record after it has moved to another parent, and deletes it at the
    // next refill. This slot of the view, meant for a widget that is gone, takes it off the record.
    QMetaObject::invokeMethod(m_form->tableWidget, "editorDestroyed", Qt::DirectConnection,
                              Q_ARG(QObject*, row));
    row->removeEventFilter(m_form->tableWidget);
    m_rowHeights->forget(row);
    if (m_lastRow == row)
        m_lastRow = nullptr;
}

void PartHarbor_2D::OnPushButtonClicked(int id)
{
    const QPointer<QAbstractButton> clicked(m_pageButtons->pressedButton(id));
    if (clicked)
        m_pageNumber = clicked->text();
    if (m_pageNumber == QLatin1String("<"))
        m_pageNumber = QString::number(CurrentPageNumber.toInt() - 1);
    else if (m_pageNumber == QLatin1String(">"))
        m_pageNumber = QString::number(CurrentPageNumber.toInt() + 1);
    relabel();

    const QString pageNumber = m_pageNumber; // a box may open while sending, and the page go with it
    sendSearch();
    LastPageButton = clicked;
    CurrentPageNumber = pageNumber;
}

void PartHarbor_2D::relabel()
{
    for (const QPushButton* button :
         {m_form->pushButton1, m_form->pushButton6, m_form->pushButton2, m_form->pushButton3,
          m_form->pushButton4, m_form->pushButton5, m_form->pushButton7})
        if (m_pageNumber == button->text())
            return;
    m_form->pushButton3->setText(QLatin1String("..."));
    m_form->pushButton3->setEnabled(false);
    m_form->pushButton4->setText(m_pageNumber);
    m_form->pushButton5->setText(QString::number(m_pageNumber.toInt() + 1));
}

void PartHarbor_2D::ReleaseTask(int id)
{
    if (const QAbstractButton* button = m_pageButtons->pressedButton(id))
        m_releasedText = button->text();
}

void PartHarbor_2D::leave()
{
    hide();
    m_parentLayout->removeWidget(this); // it would be asked for its size for as long as the pane is there
    removeRows();
    m_parser = std::make_unique<XMLParser>();
    m_replyText.clear();
    for (QList<QString>* texts :
         {&m_thumbnailUrls, &m_modelNames, &m_supplierNames, &m_descriptions, &m_categories})
        texts->clear();
}

void PartHarbor_2D::OnBackButtonClick()
{
    leave();
    m_newPanel = new PV3DPartHarbor_2D(m_application, m_parentWidget);
    m_parentLayout->addWidget(m_newPanel);
    m_newPanel->show();
}
