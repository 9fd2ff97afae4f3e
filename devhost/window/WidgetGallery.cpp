#include "devhost/window/WidgetGallery.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFile>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
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

} // namespace

WidgetGallery::WidgetGallery(const QString& styleSheetPath, QWidget* parent) : QDialog(parent)
{
    setObjectName("widgetGallery");
    setWindowTitle("Styled Widgets");
    QFile file(styleSheetPath);
    if (file.open(QIODevice::ReadOnly))
        setStyleSheet(QString::fromUtf8(file.readAll()));

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(besideEachOther({createColumn("Enabled", true), createColumn("Disabled", false)}));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

QWidget* WidgetGallery::createColumn(const QString& title, bool enabled)
{
    auto* group = new QGroupBox(title);
    auto* form = new QFormLayout(group);
    addButtons(*form);
    addInputs(*form);
    addViews(*form);
    group->setEnabled(enabled);
    return group;
}

void WidgetGallery::addButtons(QFormLayout& form)
{
    auto* checkable = new QPushButton("Checked");
    checkable->setCheckable(true);
    checkable->setChecked(true);
    auto* tool = new QToolButton;
    tool->setText("Tool");
    form.addRow("Buttons", besideEachOther({new QPushButton("Push"), checkable, tool}));

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
    form.addRow("Line edits", besideEachOther({new QLineEdit("Text"), empty}));

    auto* combo = new QComboBox;
    combo->addItems({"Front", "Top", "Isometric"});
    auto* editable = new QComboBox;
    editable->addItems({"Editable", "Other"});
    editable->setEditable(true);
    form.addRow("Combo boxes", besideEachOther({combo, editable}));

    auto* slider = new QSlider(Qt::Horizontal);
    slider->setValue(40);
    form.addRow("Numbers", besideEachOther({new QSpinBox, new QDoubleSpinBox, slider}));

    auto* progress = new QProgressBar;
    progress->setValue(60);
    form.addRow("Progress", progress);

    auto* text = new QPlainTextEdit("Several lines\nof text\nthat do\nnot\nfit\nin");
    text->setMaximumHeight(60);
    form.addRow("Text", text);

    auto* label = new QLabel("Label with a <a href=\"#\">link</a>");
    label->setFocusPolicy(Qt::NoFocus);
    form.addRow("Label", label);
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
    tree->expandAll();

    auto* table = new QTableWidget(2, 2);
    table->setHorizontalHeaderLabels({"Length", "Width"});
    table->setItem(0, 0, new QTableWidgetItem("40"));
    table->setItem(1, 1, new QTableWidgetItem("12"));
    table->setAlternatingRowColors(true);

    auto* tabs = new QTabWidget;
    tabs->addTab(list, "List");
    tabs->addTab(tree, "Tree");
    tabs->addTab(table, "Table");
    tabs->setMaximumHeight(140);
    form.addRow("Views", tabs);
}

} // namespace devhost
