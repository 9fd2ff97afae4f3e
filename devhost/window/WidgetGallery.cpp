#include "WidgetGallery.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDial>
#include <QDockWidget>
#include <QDoubleSpinBox>
#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QSplitter>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolBar>
#include <QToolBox>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace
{

template <typename Widget>
Widget* disabled(Widget* widget)
{
    widget->setEnabled(false);
    return widget;
}

QGroupBox* group(const QString& title, QLayout* content)
{
    auto* box = new QGroupBox(title);
    box->setLayout(content);
    return box;
}

QPushButton* checkableButton(const QString& text, bool checked)
{
    auto* button = new QPushButton(text);
    button->setCheckable(true);
    button->setChecked(checked);
    return button;
}

QPushButton* flatButton()
{
    auto* button = new QPushButton(QStringLiteral("Flat"));
    button->setFlat(true);
    return button;
}

QPushButton* defaultButton()
{
    auto* button = new QPushButton(QStringLiteral("Default"));
    button->setDefault(true);
    return button;
}

/// Three entries, one of them checked, one disabled, and a submenu.
QMenu* sampleMenu(const QString& title, QWidget* parent)
{
    auto* menu = new QMenu(title, parent);
    menu->addAction(QStringLiteral("Open..."))->setShortcut(QKeySequence::Open);
    QAction* checked = menu->addAction(QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    menu->addAction(QStringLiteral("Unchecked"))->setCheckable(true);
    menu->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    menu->addSeparator();
    menu->addMenu(QStringLiteral("Submenu"))->addAction(QStringLiteral("Entry"));
    return menu;
}

QToolButton* toolButton(const QString& text, QToolButton::ToolButtonPopupMode mode)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setPopupMode(mode);
    button->setMenu(sampleMenu(text, button));
    return button;
}

QGroupBox* pushButtons()
{
    auto* grid = new QGridLayout;
    grid->addWidget(new QPushButton(QStringLiteral("Push")), 0, 0);
    grid->addWidget(defaultButton(), 0, 1);
    grid->addWidget(disabled(new QPushButton(QStringLiteral("Disabled"))), 0, 2);
    grid->addWidget(checkableButton(QStringLiteral("Checked"), true), 1, 0);
    grid->addWidget(checkableButton(QStringLiteral("Unchecked"), false), 1, 1);
    grid->addWidget(disabled(checkableButton(QStringLiteral("Disabled, checked"), true)), 1, 2);
    grid->addWidget(flatButton(), 2, 0);
    grid->addWidget(toolButton(QStringLiteral("Tool"), QToolButton::MenuButtonPopup), 2, 1);
    grid->addWidget(toolButton(QStringLiteral("Tool menu"), QToolButton::InstantPopup), 2, 2);
    return group(QStringLiteral("Buttons"), grid);
}

QCheckBox* checkBox(const QString& text, Qt::CheckState state)
{
    auto* box = new QCheckBox(text);
    box->setTristate(state == Qt::PartiallyChecked);
    box->setCheckState(state);
    return box;
}

QRadioButton* radioButton(const QString& text, bool checked, QButtonGroup* exclusive)
{
    auto* button = new QRadioButton(text);
    exclusive->addButton(button);
    button->setChecked(checked);
    return button;
}

QGroupBox* choices()
{
    auto* grid = new QGridLayout;
    QGroupBox* box = group(QStringLiteral("Choices"), grid);
    for (const bool enabled : {true, false}) {
        const int column = enabled ? 0 : 1;
        auto* exclusive = new QButtonGroup(box);
        const QList<QAbstractButton*> buttons = {
            checkBox(QStringLiteral("Unchecked"), Qt::Unchecked),
            checkBox(QStringLiteral("Checked"), Qt::Checked),
            checkBox(QStringLiteral("Partly checked"), Qt::PartiallyChecked),
            radioButton(QStringLiteral("Off"), false, exclusive),
            radioButton(QStringLiteral("On"), true, exclusive),
        };
        for (int row = 0; row < buttons.size(); ++row) {
            buttons[row]->setEnabled(enabled);
            grid->addWidget(buttons[row], row, column);
        }
    }
    return box;
}

QLineEdit* placeholderEdit()
{
    auto* edit = new QLineEdit;
    edit->setPlaceholderText(QStringLiteral("Placeholder"));
    edit->setClearButtonEnabled(true);
    return edit;
}

QLineEdit* readOnlyEdit()
{
    auto* edit = new QLineEdit(QStringLiteral("Read-only"));
    edit->setReadOnly(true);
    return edit;
}

QGroupBox* textFields()
{
    auto* grid = new QGridLayout;
    grid->addWidget(new QLineEdit(QStringLiteral("Text")), 0, 0);
    grid->addWidget(placeholderEdit(), 0, 1);
    grid->addWidget(readOnlyEdit(), 1, 0);
    grid->addWidget(disabled(new QLineEdit(QStringLiteral("Disabled"))), 1, 1);
    auto* text =
        new QTextEdit(QStringLiteral("<p>Text with a <a href='#'>link</a></p><p>two</p><p>three</p>"));
    auto* plain = new QPlainTextEdit(QStringLiteral("Plain text, disabled"));
    text->moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    text->setMaximumHeight(60);
    plain->setMaximumHeight(60);
    grid->addWidget(text, 2, 0);
    grid->addWidget(disabled(plain), 2, 1);
    grid->addWidget(new QLabel(QStringLiteral("Label with a <a href='#'>link</a>")), 3, 0);
    grid->addWidget(disabled(new QLabel(QStringLiteral("Disabled label"))), 3, 1);
    return group(QStringLiteral("Text"), grid);
}

QComboBox* comboBox(bool editable)
{
    auto* box = new QComboBox;
    box->addItems({QStringLiteral("Front"), QStringLiteral("Top"), QStringLiteral("Isometric")});
    box->setEditable(editable);
    return box;
}

QDateEdit* dateEdit()
{
    auto* edit = new QDateEdit(QDate(2024, 2, 29));
    edit->setCalendarPopup(true);
    return edit;
}

QGroupBox* selectors()
{
    auto* grid = new QGridLayout;
    grid->addWidget(comboBox(false), 0, 0);
    grid->addWidget(comboBox(true), 0, 1);
    grid->addWidget(disabled(comboBox(false)), 0, 2);
    auto* stopped = new QSpinBox; // at its minimum: the arrow down is off
    grid->addWidget(stopped, 1, 0);
    grid->addWidget(new QDoubleSpinBox, 1, 1);
    grid->addWidget(disabled(new QSpinBox), 1, 2);
    grid->addWidget(dateEdit(), 2, 0);
    grid->addWidget(new QTimeEdit, 2, 1);
    grid->addWidget(disabled(dateEdit()), 2, 2);
    return group(QStringLiteral("Selectors"), grid);
}

template <typename Range>
Range* horizontal(int value)
{
    auto* range = new Range(Qt::Horizontal);
    range->setValue(value);
    return range;
}

QProgressBar* progressBar(int maximum, int value)
{
    auto* bar = new QProgressBar;
    bar->setMaximum(maximum);
    bar->setValue(value);
    return bar;
}

QGroupBox* ranges()
{
    auto* grid = new QGridLayout;
    grid->addWidget(horizontal<QSlider>(40), 0, 0);
    grid->addWidget(disabled(horizontal<QSlider>(40)), 0, 1);
    grid->addWidget(progressBar(100, 60), 1, 0);
    grid->addWidget(disabled(progressBar(100, 60)), 1, 1);
    grid->addWidget(progressBar(100, 0), 2, 0);
    grid->addWidget(progressBar(0, 0), 2, 1);
    grid->addWidget(horizontal<QScrollBar>(40), 3, 0);
    grid->addWidget(disabled(horizontal<QScrollBar>(40)), 3, 1);
    auto* upright = new QSlider(Qt::Vertical);
    upright->setValue(30);
    grid->addWidget(upright, 0, 2, 4, 1);
    grid->addWidget(new QDial, 0, 3, 4, 1);
    return group(QStringLiteral("Ranges"), grid);
}

QTreeWidget* tree()
{
    auto* view = new QTreeWidget;
    view->setHeaderLabels({QStringLiteral("Part"), QStringLiteral("Supplier")});
    view->setSortingEnabled(true);
    auto* open = new QTreeWidgetItem(view, {QStringLiteral("Bearings"), QStringLiteral("open")});
    auto* part = new QTreeWidgetItem(open, {QStringLiteral("Checked"), QStringLiteral("6204")});
    part->setCheckState(0, Qt::Checked);
    auto* other = new QTreeWidgetItem(open, {QStringLiteral("Unchecked"), QStringLiteral("6205")});
    other->setCheckState(0, Qt::Unchecked);
    (new QTreeWidgetItem(open, {QStringLiteral("Disabled"), QStringLiteral("6206")}))->setDisabled(true);
    auto* closed = new QTreeWidgetItem(view, {QStringLiteral("Screws"), QStringLiteral("closed")});
    closed->addChild(new QTreeWidgetItem({QStringLiteral("M8")}));
    open->setExpanded(true);
    view->setCurrentItem(part);
    return view;
}

QTableWidget* table()
{
    auto* view = new QTableWidget(4, 3);
    view->setHorizontalHeaderLabels({QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    view->setAlternatingRowColors(true);
    for (int row = 0; row < view->rowCount(); ++row) {
        for (int column = 0; column < view->columnCount(); ++column) {
            view->setItem(row, column, new QTableWidgetItem(QStringLiteral("%1.%2").arg(row).arg(column)));
        }
    }
    view->setCurrentCell(1, 1);
    return view;
}

QListWidget* list()
{
    auto* view = new QListWidget;
    for (int number = 1; number <= 12; ++number) {
        view->addItem(QStringLiteral("Entry %1").arg(number));
    }
    view->setCurrentRow(1);
    view->item(2)->setFlags(Qt::NoItemFlags);
    return view;
}

QGroupBox* itemViews()
{
    auto* row = new QHBoxLayout;
    auto* sideBySide = new QSplitter;
    sideBySide->addWidget(tree());
    sideBySide->addWidget(table());
    sideBySide->addWidget(list());
    sideBySide->addWidget(disabled(list()));
    sideBySide->setSizes({220, 220, 110, 110});
    row->addWidget(sideBySide);
    return group(QStringLiteral("Item views in a splitter"), row);
}

QTabWidget* tabs(QTabWidget::TabPosition position)
{
    auto* widget = new QTabWidget;
    widget->setTabPosition(position);
    widget->setTabsClosable(true);
    widget->addTab(new QLabel(QStringLiteral("Page")), QStringLiteral("Current"));
    widget->addTab(new QLabel, QStringLiteral("Other"));
    widget->addTab(new QLabel, QStringLiteral("Disabled"));
    widget->setTabEnabled(2, false);
    return widget;
}

QGroupBox* checkableGroup(bool checked)
{
    auto* content = new QVBoxLayout;
    content->addWidget(new QCheckBox(QStringLiteral("Inside")));
    content->addWidget(new QLineEdit(QStringLiteral("Inside")));
    QGroupBox* box = group(checked ? QStringLiteral("Group on") : QStringLiteral("Group off"), content);
    box->setCheckable(true);
    box->setChecked(checked);
    return box;
}

QToolBox* toolBox()
{
    auto* box = new QToolBox;
    box->addItem(new QLabel(QStringLiteral("Content")), QStringLiteral("Open drawer"));
    box->addItem(new QLabel, QStringLiteral("Closed drawer"));
    return box;
}

QFrame* frame(QFrame::Shape shape)
{
    auto* area = new QFrame;
    area->setFrameShape(shape);
    area->setMinimumHeight(8);
    return area;
}

QGroupBox* containers()
{
    auto* grid = new QGridLayout;
    grid->addWidget(tabs(QTabWidget::North), 0, 0, 1, 2);
    grid->addWidget(tabs(QTabWidget::South), 1, 0, 1, 2);
    grid->addWidget(checkableGroup(true), 2, 0);
    grid->addWidget(checkableGroup(false), 2, 1);
    grid->addWidget(toolBox(), 3, 0, 1, 2);
    grid->addWidget(frame(QFrame::StyledPanel), 4, 0);
    grid->addWidget(frame(QFrame::HLine), 4, 1);
    return group(QStringLiteral("Containers"), grid);
}

QMainWindow* mainWindow()
{
    auto* window = new QMainWindow;
    window->setWindowFlags(Qt::Widget);
    window->menuBar()->addMenu(sampleMenu(QStringLiteral("File"), window));
    window->menuBar()->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    QToolBar* bar = window->addToolBar(QStringLiteral("Tools"));
    bar->addAction(QStringLiteral("Tool"));
    QAction* checked = bar->addAction(QStringLiteral("Checked"));
    checked->setCheckable(true);
    checked->setChecked(true);
    bar->addSeparator();
    bar->addAction(QStringLiteral("Disabled"))->setEnabled(false);
    auto* dock = new QDockWidget(QStringLiteral("Dock"), window);
    dock->setWidget(new QLabel(QStringLiteral("Content of the dock")));
    window->addDockWidget(Qt::LeftDockWidgetArea, dock);
    window->setCentralWidget(new QTextEdit(QStringLiteral("Central")));
    window->statusBar()->showMessage(QStringLiteral("Status"));
    return window;
}

/// A menu that stands open in the gallery instead of popping up.
QMenu* standingMenu()
{
    QMenu* menu = sampleMenu(QStringLiteral("Menu"), nullptr);
    menu->setWindowFlags(Qt::Widget);
    menu->setActiveAction(menu->actions().constFirst());
    return menu;
}

QGroupBox* windows()
{
    auto* row = new QHBoxLayout;
    row->addWidget(mainWindow(), 1);
    row->addWidget(standingMenu());
    return group(QStringLiteral("Window parts"), row);
}

QMessageBox* messageBox(QMessageBox::Icon icon, const QString& title, QMessageBox::StandardButtons buttons)
{
    auto* box = new QMessageBox(icon, title, title + QStringLiteral(": the text of a message."), buttons);
    box->setWindowFlags(Qt::Widget);
    return box;
}

QGroupBox* messageBoxes()
{
    auto* grid = new QGridLayout;
    grid->addWidget(messageBox(QMessageBox::Critical, QStringLiteral("Error"), QMessageBox::Ok), 0, 0);
    grid->addWidget(messageBox(QMessageBox::Information, QStringLiteral("Message"), QMessageBox::Ok), 0, 1);
    grid->addWidget(
        messageBox(QMessageBox::Warning, QStringLiteral("Warning"), QMessageBox::Save | QMessageBox::Cancel),
        1, 0);
    grid->addWidget(disabled(messageBox(QMessageBox::Question, QStringLiteral("Disabled"),
                                        QMessageBox::Yes | QMessageBox::No)),
                    1, 1);
    return group(QStringLiteral("Message boxes"), grid);
}

QGroupBox* calendar()
{
    auto* column = new QVBoxLayout;
    auto* widget = new QCalendarWidget;
    widget->setSelectedDate(QDate(2024, 2, 29));
    column->addWidget(widget);
    return group(QStringLiteral("Calendar"), column);
}

QVBoxLayout* column(const QList<QWidget*>& widgets)
{
    auto* layout = new QVBoxLayout;
    for (QWidget* widget : widgets) {
        layout->addWidget(widget);
    }
    layout->addStretch();
    return layout;
}

} // namespace

WidgetGallery::WidgetGallery(QWidget* parent) : QWidget(parent)
{
    setWindowTitle(QStringLiteral("Widget gallery"));
    setToolTip(QStringLiteral("Tool tip of the gallery"));
    auto* columns = new QHBoxLayout(this);
    columns->addLayout(column({pushButtons(), choices(), textFields(), selectors(), ranges()}));
    columns->addLayout(column({itemViews(), windows(), messageBoxes()}), 1);
    columns->addLayout(column({containers(), calendar()}));
}

void WidgetGallery::applyStyleSheet(const QString& text)
{
    setStyleSheet(text);
}
