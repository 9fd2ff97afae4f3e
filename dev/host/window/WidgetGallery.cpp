#include "dev/host/window/WidgetGallery.h"

#include "dev/host/window/ScreenFit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDial>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStandardItemModel>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeWidget>

namespace devhost
{

namespace
{

QHBoxLayout* besideEachOther(std::initializer_list<QWidget*> widgets)
{
    auto* layout = new QHBoxLayout;
    for (QWidget* widget : widgets)
        layout->addWidget(widget);
    return layout;
}

/// Commands of every kind: plain, checked, not to be had, and more of them.
void addCommands(QMenu* menu)
{
    menu->addAction("Plain");
    QAction* checked = menu->addAction("Checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addSeparator();
    menu->addAction("Disabled")->setEnabled(false);
    menu->addMenu("More")->addAction("Deeper");
}

QFrame* createLine()
{
    auto* line = new QFrame;
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    return line;
}

} // namespace

WidgetGallery::WidgetGallery(const QString& styleSheetPath, QWidget* parent) : QDialog(parent)
{
    setObjectName("widgetGallery");
    setWindowTitle("Styled Widgets");
    QFile file(styleSheetPath);
    if (file.open(QIODevice::ReadOnly))
        setStyleSheet(QString::fromUtf8(file.readAll()));

    auto* layout = new QVBoxLayout(this);
    layout->setMenuBar(createMenuBar());
    layout->addWidget(createToolBar());
    auto* columns = new QWidget;
    columns->setLayout(besideEachOther({createColumn("Enabled", true), createColumn("Disabled", false)}));
    auto* area = new QScrollArea;
    area->setWidgetResizable(true);
    area->setWidget(columns);
    layout->addWidget(area);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    auto* status = new QStatusBar;
    status->showMessage("Status");
    layout->addWidget(status);
    resize(sizeHint() + columns->sizeHint() - area->sizeHint()); // As large as if nothing had to scroll.
    fitToScreen(*this);
}

QMenuBar* WidgetGallery::createMenuBar()
{
    auto* bar = new QMenuBar;
    addCommands(bar->addMenu("Menu"));
    bar->addMenu("Disabled")->setEnabled(false);
    return bar;
}

QToolBar* WidgetGallery::createToolBar()
{
    auto* bar = new QToolBar;
    bar->addAction("Plain");
    QAction* checked = bar->addAction("Checked");
    checked->setCheckable(true);
    checked->setChecked(true);
    bar->addSeparator();
    bar->addAction("Disabled")->setEnabled(false);
    return bar;
}

QWidget* WidgetGallery::createColumn(const QString& title, bool enabled)
{
    auto* group = new QGroupBox(title);
    auto* form = new QFormLayout(group);
    addButtons(*form);
    addInputs(*form);
    addNumbers(*form);
    addViews(*form);
    addContainers(*form);
    group->setEnabled(enabled);
    return group;
}

void WidgetGallery::addButtons(QFormLayout& form)
{
    auto* checkable = new QPushButton("Checked");
    checkable->setCheckable(true);
    checkable->setChecked(true);
    auto* menu = new QPushButton("Menu");
    menu->setMenu(new QMenu(menu));
    addCommands(menu->menu());
    auto* tool = new QToolButton;
    tool->setText("Tool");
    tool->setPopupMode(QToolButton::MenuButtonPopup);
    tool->setMenu(new QMenu(tool));
    addCommands(tool->menu());
    form.addRow("Buttons", besideEachOther({new QPushButton("Push"), checkable, menu, tool}));

    auto* checked = new QCheckBox("On");
    checked->setChecked(true);
    auto* partly = new QCheckBox("Partly");
    partly->setTristate(true);
    partly->setCheckState(Qt::PartiallyChecked);
    form.addRow("Check boxes", besideEachOther({new QCheckBox("Off"), checked, partly}));

    auto* radio = new QRadioButton("On");
    radio->setChecked(true);
    form.addRow("Radio buttons", besideEachOther({radio, new QRadioButton("Off")}));
}

void WidgetGallery::addInputs(QFormLayout& form)
{
    auto* empty = new QLineEdit;
    empty->setPlaceholderText("Placeholder");
    auto* readOnly = new QLineEdit("Read only");
    readOnly->setReadOnly(true);
    form.addRow("Line edits", besideEachOther({new QLineEdit("Text"), empty, readOnly}));

    auto* combo = new QComboBox;
    combo->addItems({"Front", "Not to be had", "Isometric"});
    qobject_cast<QStandardItemModel*>(combo->model())->item(1)->setEnabled(false);
    auto* editable = new QComboBox;
    editable->addItems({"Editable", "Other"});
    editable->setEditable(true);
    form.addRow("Combo boxes", besideEachOther({combo, editable}));

    auto* text = new QPlainTextEdit("Several lines\nof text\nthat do\nnot\nfit\nin");
    text->setMaximumHeight(60);
    form.addRow("Text", text);
}

void WidgetGallery::addNumbers(QFormLayout& form)
{
    auto* date = new QDateEdit(QDate(2020, 2, 29));
    date->setCalendarPopup(true);
    form.addRow("Numbers", besideEachOther({new QSpinBox, new QDoubleSpinBox, date}));

    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    auto* upright = new QSlider(Qt::Vertical);
    upright->setValue(40);
    auto* dial = new QDial;
    for (QWidget* widget : std::initializer_list<QWidget*>{upright, dial})
        widget->setMaximumHeight(40);
    form.addRow("Sliders", besideEachOther({slider, upright, dial}));

    auto* progress = new QProgressBar;
    progress->setValue(60);
    form.addRow("Progress", progress);
    form.addRow("Line", createLine());
}

void WidgetGallery::addViews(QFormLayout& form)
{
    auto* list = new QListWidget;
    list->addItems({"List", "Selected", "Third"});
    list->setCurrentRow(1);

    auto* tree = new QTreeWidget;
    tree->setHeaderLabel("Tree");
    auto* branch = new QTreeWidgetItem(tree, {"Branch"});
    new QTreeWidgetItem(branch, {"Leaf"});
    new QTreeWidgetItem(new QTreeWidgetItem(tree, {"Closed"}), {"Leaf"});
    tree->expandItem(branch);

    auto* table = new QTableWidget(2, 2);
    table->setHorizontalHeaderLabels({"Length", "Width"});
    table->setItem(0, 0, new QTableWidgetItem("40"));
    table->setItem(1, 1, new QTableWidgetItem("12"));
    table->setAlternatingRowColors(true);
    table->selectRow(1);

    auto* views = new QSplitter;
    for (QWidget* view : std::initializer_list<QWidget*>{list, tree, table})
        views->addWidget(view);
    views->setMaximumHeight(100);
    form.addRow("Views", views);
}

void WidgetGallery::addContainers(QFormLayout& form)
{
    auto* tabs = new QTabWidget;
    tabs->addTab(new QLabel("Page"), "Current");
    tabs->addTab(new QLabel("Page"), "Other");
    tabs->setTabsClosable(true);
    auto* sideTabs = new QTabWidget;
    sideTabs->setTabPosition(QTabWidget::West);
    sideTabs->addTab(new QLabel("Page"), "A");
    sideTabs->addTab(new QLabel("Page"), "B");
    form.addRow("Tabs", besideEachOther({tabs, sideTabs}));

    auto* box = new QToolBox;
    box->addItem(new QLabel("Page"), "Current");
    box->addItem(new QLabel("Page"), "Other");
    auto* group = new QGroupBox("Group");
    group->setCheckable(true);
    (new QVBoxLayout(group))->addWidget(new QLabel("Content"));
    form.addRow("Boxes", besideEachOther({box, group}));
}

} // namespace devhost
