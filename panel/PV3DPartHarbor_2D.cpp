#include "panel/PV3DPartHarbor_2D.h"

#include "common/MessageBoxes.h"
#include "panel/PartHarbor_2D.h"
#include "panel/QtCategoryButton.h"
#include "panel/SectionFrame.h"
#include "panel/SectionTree.h"
#include "service/SessionValues.h"
#include "ui_PV3DPartHarbor_2D.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>

PV3DPartHarbor_2D::PV3DPartHarbor_2D(pvApplication_c* application, QWidget* parent)
    : QWidget(parent),
      m_application(application),
      m_form(std::make_unique<Ui::PartHarbor_2DMain>()),
      m_sectionItems(std::make_unique<QList<QTreeWidgetItem*>>())
{
    m_form->setupUi(this);
    buildPanel();
    m_sectionButtons = new QButtonGroup(this);
    m_sectionButtons->addButton(m_searchHeader, 0);
    m_sectionItems->append(m_searchItem);

    connect(m_sectionButtons, SIGNAL(buttonClicked(int)), this, SLOT(CategoryButtonPressed(int)));
    connect(m_searchButton, SIGNAL(clicked()), this, SLOT(on_line_edit()));
    connect(m_searchLine, SIGNAL(returnPressed()), this, SLOT(on_line_edit()));
    // The panel accepts focus but swallows the keys that would lead on from it. Its proxy is where Tab comes
    // in, so the section follows.
    setFocusProxy(m_searchLine);
    setTabOrder(m_searchButton, m_form->PH_2DTabPage);
    setTabOrder(m_form->PH_2DTabPage, m_searchHeader);
}

PV3DPartHarbor_2D::~PV3DPartHarbor_2D()
{
    // The pane goes under a box that Return has opened: the line edit is still handling the key.
    if (m_starting)
        m_searchLine->setParent(nullptr);
}

void PV3DPartHarbor_2D::buildPanel()
{
    prepareSectionTree(m_form->PH_2DTabPage);
    const Section section = addSection(m_form->PH_2DTabPage, QObject::tr("Search"), frameGeometry());
    m_searchItem = section.item;
    m_searchHeader = section.header;
    buildSearchRow();
}

void PV3DPartHarbor_2D::buildSearchRow()
{
    auto* frame = new SectionFrame(m_form->PH_2DTabPage);
    auto* grid = new QGridLayout(frame);
    grid->setContentsMargins(5, 3, 5, 3);
    grid->setVerticalSpacing(0);
    grid->setHorizontalSpacing(270);

    m_searchLine = new QLineEdit(frame);
    m_searchLine->setObjectName(QLatin1String("SearchLine"));
    m_searchLine->setAccessibleName(QLatin1String("Search term"));
    m_searchLine->setMinimumHeight(25);
    m_searchLine->setStyleSheet(QLatin1String("QLineEdit{margin-right : 30px;}"));
    // 129 is the value of Qt::AlignLeft | Qt::AlignVCenter, passed as the column span. With it the button,
    // which begins a column later, lies over the end of the line.
    grid->addWidget(m_searchLine, 0, 0, 1, 129);

    m_searchButton = new QPushButton(frame);
    m_searchButton->setObjectName(QLatin1String("SearchButton"));
    m_searchButton->setAccessibleName(QLatin1String("Search"));
    m_searchButton->setMinimumHeight(25);
    m_searchButton->setIcon(QIcon(QLatin1String(":/3DPH/Resource/search.svg")));
    grid->addWidget(m_searchButton, 0, 1, 1, 129);
    grid->setColumnStretch(0, 1); // keeps the button at the line's end at any width

    setSectionContent(m_searchItem, frame);
}

void PV3DPartHarbor_2D::CategoryButtonPressed(int id)
{
    toggleSection(*m_sectionItems, *m_sectionButtons, id);
    update();
}

void PV3DPartHarbor_2D::on_line_edit()
{
    const QPointer<PV3DPartHarbor_2D> self(this); // a box may open, during which the pane may go
    QLineEdit* const line = m_searchLine;
    m_starting = true;
    if (line->text().isEmpty())
        showErrorBox(QObject::tr("Please enter Search string"));
    else
        startSearch();
    if (self.isNull())
        line->deleteLater(); // from here, not from the box's own event loop, which would do it under the key
    else
        m_starting = false;
}

void PV3DPartHarbor_2D::startSearch()
{
    SearchTerm = m_searchLine->text();
    hide();
    QWidget* const container = parentWidget();
    m_parentLayout = container->layout();
    m_resultsPage = new PartHarbor_2D(m_application, container);

    const QPointer<PV3DPartHarbor_2D> self(this);
    m_resultsPage->startSearch();
    if (self.isNull())
        return;
    delete m_parentLayout->replaceWidget(this, m_resultsPage, Qt::FindChildrenRecursively);
    m_resultsPage->show();
    leave();
    m_resultsPage->settle();
}

void PV3DPartHarbor_2D::leave()
{
    m_sectionItems->clear();
    m_form->PH_2DTabPage->clear(); // later, in the event loop: the search line is still handling its key
}

void PV3DPartHarbor_2D::SetAccessToken(QNetworkReply* /*reply*/)
{
}

void PV3DPartHarbor_2D::GetAPIKey(QNetworkReply* /*reply*/)
{
}

void PV3DPartHarbor_2D::SetModelData(QNetworkReply* /*reply*/)
{
}

bool PV3DPartHarbor_2D::event(QEvent* event)
{
    event->accept();
    return true;
}

void PV3DPartHarbor_2D::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        emit clicked();
}
