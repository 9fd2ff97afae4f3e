#include "panel/TableItem.h"

#include "panel/PartHarbor_2D.h"
#include "panel/PreviewUI.h"
#include "panel/RowFocus.h"
#include "panel/ShownText.h"
#include "service/PictureRequest.h"
#include "service/PictureThread.h"
#include "service/Transfer.h"
#include "ui_TableItem.h"

#include <QApplication>
#include <QGridLayout>
#include <QPointer>
#include <QPushButton>
#include <QStyleOptionButton>

namespace
{

constexpr QSize IconSize(80, 130);

/// @return how high a thumbnail's button is once it has an icon.
int heightWithIcon(const QPushButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    option.features = QStyleOptionButton::Flat;
    option.iconSize = IconSize;
    return button->style()->sizeFromContents(QStyle::CT_PushButton, &option, IconSize, button).height();
}

} // namespace

TableItem::TableItem(PartHarbor_2D* page, QWidget* parent)
    : QWidget(parent), m_form(std::make_unique<Ui::TableItem>()), m_page(page)
{
    m_form->setupUi(this);
    // Kept free from the start, so that no row, and nothing around it, is laid out anew when a picture comes.
    m_form->gridLayout_4->setRowMinimumHeight(1, heightWithIcon(m_form->iconpushButton));
    new RowFocus(this);
    connect(m_form->iconpushButton, SIGNAL(clicked()), this, SLOT(Preview()));
}

TableItem::~TableItem() = default;

void TableItem::setSupplierName(const QString& name)
{
    m_form->label->setText(shownText(name));
}

void TableItem::setThumbnailUrl(const QString& url)
{
    requestPicture(url, this, SLOT(Iamgedata(QNetworkReply*)));
}

void TableItem::setModelName(const QString& name)
{
    m_form->namevaluelabel->setText(shownText(name));
}

void TableItem::setDescription(const QString& description)
{
    m_form->descvaluelabel->setPlainText(shownText(description));
}

void TableItem::setRowIndex(int index)
{
    m_rowIndex = index;
}

void TableItem::setCategory(const QString& category)
{
    m_form->catvaluelabel->setText(category);
}

QWidget* TableItem::followInTabOrder(QWidget* previous)
{
    setTabOrder(previous, m_form->iconpushButton);
    setTabOrder(m_form->iconpushButton, m_form->descvaluelabel);
    return m_form->descvaluelabel;
}

void TableItem::Iamgedata(QNetworkReply* pReply)
{
    // No larger than the sharpest screen shows it.
    m_page->pictures().decode(takeBody(pReply), IconSize * qApp->devicePixelRatio(), this,
                              SLOT(showThumbnail(const QImage&)));
}

void TableItem::showThumbnail(const QImage& image)
{
    m_form->iconpushButton->setIcon(QIcon(QPixmap::fromImage(image)));
    m_form->iconpushButton->setIconSize(IconSize);
    m_form->gridLayout_5->activate(); // the button grows before it is painted
}

void TableItem::Preview()
{
    QWidget* const container = m_page->container();
    auto* layout = qobject_cast<QGridLayout*>(container->layout());
    m_detailPage = new PreviewUI(m_page->application(), container);
    layout->addWidget(m_detailPage);
    m_detailPage->setModel(m_form->label->text(), m_form->namevaluelabel->text());

    const QPointer<TableItem> self(this);
    const QPointer<PreviewUI> detailPage(m_detailPage);
    m_detailPage->GetConfigInfo(); // may open a box, during which the pane may go, or a refill take the row
    if (self.isNull()) {
        delete detailPage; // it would come up beside the results
        return;
    }
    requestPicture(m_page->parser().GetSearchItemImageUrls().value(m_rowIndex), this,
                   SLOT(PreviewDownloaded(QNetworkReply*)));
    m_page->releaseRow(this);
    m_detailPage->showRow(this);
    m_form->iconpushButton->setEnabled(false);
    m_page->leave();
    m_detailPage->show();
    QMetaObject::invokeMethod(m_detailPage, "settle", Qt::QueuedConnection);
}

void TableItem::PreviewDownloaded(QNetworkReply* pReply)
{
    m_page->pictures().decode(takeBody(pReply), MaximumPictureSize, this, SLOT(showPreview(const QImage&)));
}

void TableItem::showPreview(const QImage& image)
{
    m_detailPage->showPreview(QPixmap::fromImage(image));
}
