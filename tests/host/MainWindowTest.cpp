#include "dev/host/window/MainWindow.h"
#include "dev/dwg/Writer.h"
#include "dev/host/window/CommandLine.h"
#include "dev/host/window/CommandShortcuts.h"
#include "dev/host/window/DrawingArea.h"
#include "dev/host/window/DrawingCommands.h"
#include "dev/host/window/PlacementPrompt.h"
#include "tests/support/FatalWarnings.h"

#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTabBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <gdal_priv.h>
#include <ogrsf_frmts.h>

#include <functional>
#include <memory>

using devhost::BlockPromptAnswer;
using devhost::MainWindow;

namespace
{

const pvString AppID(L"APP");

constexpr int Accepted = BlockPromptAnswer::Accepted;
constexpr int Cancelled = BlockPromptAnswer::Cancelled;

} // namespace

class MainWindowTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void placementCanBeTyped();
    void promptsAreCancelled();
    void commandsAreRunByName();
    void keysGoToTheCommandLineOrIntoTextFields();
    void blocksAreSelectedErasedAndBroughtBack();
    void drawingsAreOpenedAndCopied();
    void userCommandShowsOnMenuAndRibbon();
    void paneIsDockedAroundANativeWidget();
    void hostedWidgetsFollowTheTheme();
    void smallWindowLeadsToEverything();
    void drawingsOpenSwitchAndClose();
    void wheelZoomsAroundTheCursorAndMiddleButtonPans();

private:
    /// Has the add-in's side prompt for the file and insert the block, as add-ins do; @p user acts meanwhile.
    /// @return the prompt's result.
    int place(const QString& file, const std::function<void()>& user);
    void type(const QString& text);
    /// Presses a key in the window, wherever the focus is.
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
    }
    QString lastLine() const { return m_window->commandLine().history().constLast(); }
    /// @return whether the menu entry and, where there is one, the ribbon button can be chosen.
    bool isEnabled(const QString& command) const;
    /// Registers a command as add-ins do, which counts its runs.
    void registerCommand(const wchar_t* name, int* runs);
    std::vector<std::shared_ptr<devhost::HostBlockInstance>> blocks() const;
    QString drawingFile(const QByteArray& bytes);
    QByteArray contentOf(const QString& name) const;

    std::unique_ptr<test::FatalWarnings> m_warnings;
    std::unique_ptr<MainWindow> m_window;
    QTemporaryDir m_folder;
    QString m_file; // A good drawing: a square of side 4 with its centre line.
};

void MainWindowTest::init()
{
    m_warnings = std::make_unique<test::FatalWarnings>();
    dwg::Drawing square;
    square.entities = {
        {dwg::LineKind::Outline,
         dwg::Polyline{{{{-2.0, -2.0}}, {{2.0, -2.0}}, {{2.0, 2.0}}, {{-2.0, 2.0}}}, true}},
        {dwg::LineKind::Centre, dwg::LineSegment{{-3.0, 0.0}, {3.0, 0.0}}},
    };
    m_file = drawingFile(QByteArray::fromStdString(dwg::writeDwg(square)));
    m_window = std::make_unique<MainWindow>(devhost::HostSettings());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_window->activateWindow();
    QTRY_COMPARE(QApplication::activeWindow(), m_window.get());
}

void MainWindowTest::cleanup()
{
    m_window.reset();
    m_warnings.reset();
}

int MainWindowTest::place(const QString& file, const std::function<void()>& user)
{
    devhost::HostApplication& host = m_window->host();
    pvCommandMessage_c* message = nullptr;
    host.GetCommandMessage(&message);
    pvDocument_c* document = nullptr;
    pvModel_c* model = nullptr;
    pvSketchManager_c* manager = nullptr;
    if (host.GetActiveDocument(&document) == PVRESULT_True) {
        document->GetModel(&model);
        model->GetSketchManager(&manager);
    }
    const pvString path(file.toStdWString().c_str());
    QTimer::singleShot(0, this, user);
    double x = 0.0, y = 0.0, z = 0.0, scaleX = 0.0, scaleY = 0.0, scaleZ = 0.0, rotation = 0.0;
    pvPromptResultType_e result{};
    message->PromptForBlockInsertion(path, true, 1.0, 1.0, 1.0, true, 0.0, &x, &y, &z, &scaleX, &scaleY,
                                     &scaleZ, &rotation, &result);
    if (int(result) == Accepted)
        manager->InsertBlock2(path, x, y, z, scaleX, scaleY, scaleZ, rotation, nullptr);
    return int(result);
}

void MainWindowTest::type(const QString& text)
{
    QTest::keyClicks(m_window->commandLine().input(), text);
    QTest::keyClick(m_window->commandLine().input(), Qt::Key_Return);
}

void MainWindowTest::registerCommand(const wchar_t* name, int* runs)
{
    bool (*const countRun)(void*) = [](void* context) {
        ++*static_cast<int*>(context);
        return true;
    };
    pvCommand_c* command = nullptr;
    m_window->host().CreateCommand(AppID, name, nullptr, &command);
    command->RegisterEvent(pvCommandEvent_id_e(1), runs, reinterpret_cast<void*>(countRun));
}

std::vector<std::shared_ptr<devhost::HostBlockInstance>> MainWindowTest::blocks() const
{
    return m_window->host().activeDocument()->blocks().objects();
}

QByteArray MainWindowTest::contentOf(const QString& name) const
{
    QFile file(m_folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QString MainWindowTest::drawingFile(const QByteArray& bytes)
{
    QString path = m_folder.filePath("part0.dwg");
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("The test's file cannot be written");
    return path;
}

void MainWindowTest::placementCanBeTyped()
{
    const int result = place(m_file, [&] {
        for (const char* wrong : {"12", "1,2,3,4", "a,b", "1,nan", "1,inf", "3DPH", ""})
            type(wrong);
        QCOMPARE(m_window->commandLine().history().count("A point is wanted as x,y."), 7);
        for (const char* tooFar : {"1e10,0", "0,-1000000001", "0,0,1e300"})
            type(tooFar);
        QCOMPARE(m_window->commandLine().history().count("A point is wanted within -1e9 and 1e9."), 3);
        for (const char* text : {"s", "0", "2.5", "r", "x", "90", "r", ""})
            type(text);
        QTest::keyClicks(m_window->commandLine().input(), "12.5 , -3 , 2 ");
        QTest::keyClick(m_window->commandLine().input(), Qt::Key_Enter);
    });
    QCOMPARE(result, Accepted);
    const devhost::BlockPlacement& placement = blocks().front()->placement();
    QCOMPARE(placement.x, 12.5);
    QCOMPARE(placement.y, -3.0);
    QCOMPARE(placement.z, 2.0);
    QCOMPARE(placement.scaleX, 2.5);
    QCOMPARE(placement.scaleZ, 2.5);
    QVERIFY(qAbs(placement.rotation - 1.5707963) < 1e-6);
    QCOMPARE(lastLine(), QString("Block part0 inserted at 12.5000,-3.0000."));
}

void MainWindowTest::promptsAreCancelled()
{
    const auto escapeIn = [](QWidget* widget) {
        widget->setFocus();
        QTest::keyClick(widget, Qt::Key_Escape);
    };
    const QVector<std::function<void()>> ways{
        [&] { escapeIn(&m_window->drawingArea()); },
        [&] { escapeIn(m_window->commandLine().input()); },
        [&] { escapeIn(m_window->findChild<QPlainTextEdit*>("commandHistory")); },
        [&] { type("cancel"); },
        [&] { m_window->runCommand("new"); },
        [&] { m_window->runCommand("CLOSE"); },
        [&] { m_window->close(); },
    };
    for (const auto& user : ways) {
        QCOMPARE(place(m_file, user), Cancelled);
        QVERIFY(!m_window->drawingArea().isBlockAtCursor());
        QCOMPARE(m_window->commandLine().prompt(), QString("Command:"));
        QVERIFY(m_window->currentPrompt() == nullptr);
    }

    m_window->show();
    m_window->host().closeActiveDocument();
    QCOMPARE(place(m_file, [] {}), Cancelled);
    QCOMPARE(lastLine(), QString("No drawing is open to place a block in."));
    m_window->host().newDocument();
    QCOMPARE(place(m_file, [this] { m_window.reset(); }), Cancelled);
}

void MainWindowTest::commandsAreRunByName()
{
    int runs = 0;
    registerCommand(L"3DPH", &runs);
    type("3dph");
    QCOMPARE(runs, 1);
    QVERIFY(m_window->commandLine().history().contains("Command: 3dph"));
    type(""); // Repeats.
    QCOMPARE(runs, 2);
    type("GRID");
    QVERIFY(!m_window->drawingArea().isGridVisible());
    type("LINE");
    QCOMPARE(lastLine(), QString("LINE is not part of the development host."));
    type("3DP");
    QCOMPARE(lastLine(), QString("Unknown command \"3DP\". HELP lists the commands."));

    QTest::keyClick(m_window->commandLine().input(), Qt::Key_Up);
    QTest::keyClick(m_window->commandLine().input(), Qt::Key_Up);
    QCOMPARE(m_window->commandLine().input()->text(), QString("LINE"));
}

bool MainWindowTest::isEnabled(const QString& command) const
{
    bool isEnabled = true;
    int shown = 0;
    for (const QObject* object : m_window->findChildren<QObject*>())
        if (object->property(devhost::HostCommandProperty) == command) {
            ++shown;
            isEnabled = isEnabled && object->property("enabled").toBool();
        }
    return shown > 0 && isEnabled;
}

void MainWindowTest::keysGoToTheCommandLineOrIntoTextFields()
{
    QLineEdit* input = m_window->commandLine().input();
    QVERIFY(input->hasFocus());
    auto* field = new QLineEdit;
    auto* list = new QTableWidget(1, 1); // Its items are editable, but not by typing.
    list->setItem(0, 0, new QTableWidgetItem("item"));
    list->setCurrentCell(0, 0);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto* button = new QPushButton("Button");
    QSignalSpy clicks(button, &QPushButton::clicked);
    for (QWidget* widget : std::initializer_list<QWidget*>{field, list, button}) {
        m_window->centralWidget()->layout()->addWidget(widget);
        widget->setFocus();
        QTRY_VERIFY(widget->hasFocus());
        press(Qt::Key_Space);
        press(Qt::Key_N);
        QCOMPARE(input->hasFocus(), widget != field);
        QCOMPARE(input->text(), QString(widget != field ? "n" : ""));
        input->clear();
    }
    QCOMPARE(field->text(), QString(" n"));
    QCOMPARE(clicks.size(), 1);

    field->setFocus();
    QTest::mouseClick(&m_window->drawingArea(), Qt::LeftButton);
    QVERIFY(input->hasFocus());
}

void MainWindowTest::blocksAreSelectedErasedAndBroughtBack()
{
    const auto erasedIs = [&](std::size_t left) {
        return blocks().size() == left && m_window->drawingArea().selection().empty() && !isEnabled("ERASE");
    };
    QVERIFY(!isEnabled("UNDO") && !isEnabled("REDO") && !isEnabled("ERASE"));
    for (const char* line : {"undo", "redo", "erase"})
        type(line);
    QCOMPARE(place(m_file, [&] { type("2,2"); }), Accepted);
    QCOMPARE(place(m_file, [&] { type("12,7"); }), Accepted);
    devhost::DrawingArea& area = m_window->drawingArea();
    const QImage onEdge = area.grab(QRect(area.toPixel({4.0, 3.0}) - QPoint(1, 0), QSize(3, 1))).toImage();
    QVERIFY(std::min(qGray(onEdge.pixel(0, 0)), qGray(onEdge.pixel(1, 0))) < 100); // Black on light.
    const auto click = [&](const QPointF& model, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::mouseClick(&area, Qt::LeftButton, modifiers, area.toPixel(model));
        return area.selection().size();
    };
    QCOMPARE(click({4.0, 3.0}), std::size_t(1)); // On an edge each.
    QCOMPARE(click({10.0, 6.0}), std::size_t(2));
    QCOMPARE(click({10.0, 6.0}, Qt::ShiftModifier), std::size_t(1));
    QVERIFY(isEnabled("ERASE"));
    QCOMPARE(click({10.5, 6.0}), std::size_t(0));
    click({4.0, 3.0});
    press(Qt::Key_Escape);
    QCOMPARE(area.selection().size(), std::size_t(0));

    click({4.0, 3.0});
    press(Qt::Key_Delete);
    QVERIFY(erasedIs(1));
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(erasedIs(2));
    QCOMPARE(blocks().front()->placement().x, 2.0); // Where it was in the order of drawing.
    press(Qt::Key_Z, Qt::ControlModifier);
    QVERIFY(erasedIs(1) && isEnabled("REDO"));
    press(Qt::Key_Y, Qt::ControlModifier);
    QVERIFY(erasedIs(2));
    QCOMPARE(place(m_file, [&] { type("0,0"); }), Accepted);
    QVERIFY(isEnabled("UNDO") && !isEnabled("REDO"));
}

void MainWindowTest::drawingsAreOpenedAndCopied()
{
    auto* unit = m_window->findChild<QToolButton*>("unit");
    unit->menu()->actions().constFirst()->trigger();
    QCOMPARE(unit->text(), QString("UNIT: mm"));
    QCOMPARE(place(m_file, [&] { type("100,50"); }), Accepted);
    QVERIFY(m_window->commandLine().history().contains(
        "Its unit is cm; it is scaled by 10 to the drawing's, mm."));

    devhost::DrawingCommands& commands = m_window->drawingCommands();
    const QDir folder(m_folder.path());
    commands.saveAs(folder.filePath("copy.dxf"));
    commands.saveAs(folder.filePath("copy.SVG"));
    GDALAllRegister();
    const GDALDatasetUniquePtr dxf(GDALDataset::Open(qPrintable(folder.filePath("copy.dxf"))));
    OGREnvelope extents;
    QVERIFY(dxf && dxf->GetLayer(0)->GetExtent(&extents) == OGRERR_NONE);
    QCOMPARE(QRectF(extents.MinX, extents.MinY, extents.MaxX - extents.MinX, extents.MaxY - extents.MinY),
             QRectF(70.0, 30.0, 60.0, 40.0));
    QVERIFY(contentOf("copy.dxf").contains("$INSUNITS\n 70\n     4\n"));
    QCOMPARE(contentOf("copy.SVG").count("<polyline"), 2);

    const QStringList files = folder.entryList(QDir::AllEntries | QDir::Hidden);
    for (const char* impossible : {"copy.dwg", "missing/copy.dxf", "/proc/copy.svg"}) {
        commands.saveAs(folder.filePath(impossible));
        QVERIFY2(lastLine().startsWith("Cannot save " + folder.filePath(impossible) + ": "), impossible);
    }
    QCOMPARE(folder.entryList(QDir::AllEntries | QDir::Hidden), files);

    commands.open(m_file);
    QCOMPARE(m_window->windowTitle().count("[part0.dwg]"), 1);
    QCOMPARE(unit->text(), QString("UNIT: cm")); // The file's, and that of no other drawing.
    QCOMPARE(blocks().size(), std::size_t(1));
    commands.open(drawingFile("noise"));
    QCOMPARE(lastLine(), QString("Cannot read part0.dwg: it is not a DWG file."));
    QCOMPARE(m_window->host().documents().objects().size(), std::size_t(2));
    QVERIFY(isEnabled("OPEN") && isEnabled("SAVEAS") && !isEnabled("LINE"));
}

void MainWindowTest::userCommandShowsOnMenuAndRibbon()
{
    int runs = 0;
    registerCommand(L"PARTS", &runs);
    devhost::HostApplication& host = m_window->host();
    pvUserCommand_c* userCommand = nullptr;
    host.CreateUserCommand(AppID, L"PARTS", L"^C^CPARTS", L"Finds parts", L"", L"", pvUIState_e(2), nullptr,
                           &userCommand);
    pvString id;
    userCommand->GetID(&id);
    host.menus().objects().at(4)->InsertMenuItem(AppID, pvMenuItemType_e(2), 3, L"Parts entry", id, nullptr);
    const auto tab = host.workspaces().objects().front()->tabs().objects().back();
    tab->panels().objects().front()->row()->InsertRibbonCommandButton(AppID, pvRibbonButtonStyle_e(1),
                                                                      L"Parts button", id, nullptr);

    auto* menu = m_window->findChild<QMenu*>("ID_Import");
    auto* button = m_window->findChild<QToolButton*>("UserCommand_PARTS");
    QVERIFY(menu != nullptr && button != nullptr);
    QCOMPARE(menu->actions().value(3)->text(), QString("Parts entry"));
    menu->actions().value(3)->trigger();
    QCOMPARE(button->text(), QString("Parts button"));
    QCOMPARE(button->toolTip(), QString("Finds parts"));
    // Its macro gives up what is going on.
    QCOMPARE(place(m_file, [&] { button->click(); }), Cancelled);
    QCOMPARE(runs, 2);

    host.RemoveUserInterface(AppID);
    QVERIFY(m_window->findChild<QToolButton*>("UserCommand_PARTS") == nullptr);
    QCOMPARE(m_window->findChild<QMenu*>("ID_Import")->actions().size(), 5);
    QCOMPARE(m_window->findChild<QPlainTextEdit*>("journalText")->toPlainText(),
             host.journal().lines().join('\n'));
}

void MainWindowTest::paneIsDockedAroundANativeWidget()
{
    pvCustomPropertyControl_c* control = nullptr;
    m_window->host().CreateCustomPropertyControl2(L"Parts", pvCustomPropertyControlArea_e(2), 3, &control);
    const auto isVisible = [&] {
        bool visible = false;
        control->get_Visible(&visible);
        return visible;
    };
    long handle = 0;
    control->GetHWND(&handle);
    QPointer<QWidget> content = QWidget::find(static_cast<WId>(static_cast<qint32>(handle)));
    QVERIFY(content);
    QVERIFY(content->layout() == nullptr);
    auto* dock = m_window->findChild<QDockWidget*>("pane");
    QCOMPARE(dock->windowTitle(), QString("Parts"));
    QCOMPARE(dock->widget(), content.data());

    content->setMinimumWidth(350);
    QVERIFY(!isVisible());
    control->put_Visible(true);
    QTRY_VERIFY(content->isVisible() && content->width() >= 350);
    for (const bool floating : {true, false}) {
        m_warnings->expect(QtWarningMsg, "This plugin does not support setParent!");
        dock->setFloating(floating);
        QVERIFY(isVisible());
        QTRY_VERIFY(content->isVisible());
    }
    dock->close(); // As the user does.
    QVERIFY(!isVisible());

    control->Destroy();
    QVERIFY(content.isNull());
    QVERIFY(m_window->findChild<QDockWidget*>("pane") == nullptr);
}

void MainWindowTest::hostedWidgetsFollowTheTheme()
{
    const auto pictureOf = [](QLabel& label) { return label.grab(QRect(0, 0, 90, 20)).toImage(); };
    for (const char* sheet : {"", "font-weight: bold;"}) {
        for (const char* text : {"Text", "<a href='.'>Link</a>"}) {
            QLabel old(text, m_window.get());
            old.setStyleSheet(sheet);
            const QImage before = pictureOf(old);
            for (const char* theme : {"darkTheme", "lightTheme"}) {
                m_window->findChild<QAction*>(theme)->trigger();
                QLabel made(text, m_window.get());
                made.setStyleSheet(sheet);
                QCOMPARE(pictureOf(old), pictureOf(made));
                QCOMPARE(pictureOf(old) == before, theme == QString("lightTheme"));
                QCOMPARE(old.styleSheet(), QString(sheet));
            }
        }
        QPushButton flat("Flat", m_window.get());
        flat.setFlat(true);
        flat.setStyleSheet(sheet);
        flat.show();
        const QImage unfocused = flat.grab().toImage();
        m_window->setAttribute(Qt::WA_KeyboardFocusChange); // As the Tab key does.
        flat.setFocus(Qt::TabFocusReason);
        QVERIFY(flat.grab().toImage() != unfocused);
    }
}

void MainWindowTest::smallWindowLeadsToEverything()
{
    m_window->resize(800, 1000);
    auto* dock = m_window->findChild<QDockWidget*>("commandDock");
    const auto* history = m_window->findChild<QPlainTextEdit*>("commandHistory");
    m_window->resizeDocks({dock}, {600}, Qt::Vertical);
    QTRY_COMPARE(dock->height(), 400);
    m_window->resize(800, 600);
    QTRY_VERIFY(dock->height() <= 240);
    QCOMPARE(m_window->size(), QSize(800, 600));
    m_window->resizeDocks({dock}, {1}, Qt::Vertical);
    QTRY_VERIFY(dock->height() < 120);
    QVERIFY(history->viewport()->height() >= history->fontMetrics().height());

    QWidget* page = m_window->findChild<QTabWidget*>("ribbon")->currentWidget();
    const auto* last = page->findChildren<QToolButton*>(QRegularExpression("^[A-Z]")).constLast();
    const auto isSeen = [&] { return last->visibleRegion().boundingRect() == last->rect(); };
    auto* right = page->findChild<QToolButton*>("ribbonRight");
    QVERIFY(!isSeen());
    for (int click = 0; click < 9 && right->isVisible(); ++click)
        QTest::mouseClick(right, Qt::LeftButton);
    QVERIFY(isSeen());

    m_window->showGallery();
    m_window->findChild<QAction*>("unsaid")->trigger();
    const QList<QDialog*> dialogs = m_window->findChildren<QDialog*>();
    QCOMPARE(dialogs.size(), 2);
    for (const QDialog* dialog : dialogs)
        QVERIFY(dialog->height() < dialog->screen()->availableGeometry().height());
    QVERIFY(m_window->findChild<QTextBrowser*>()->toPlainText().contains("page number"));
}

void MainWindowTest::drawingsOpenSwitchAndClose()
{
    auto* tabs = m_window->findChild<QTabBar*>("documentTabs");
    QCOMPARE(place(m_file, [&] { type("3,4"); }), Accepted);
    type("NEW");
    QCOMPARE(tabs->count(), 2);
    QVERIFY(blocks().empty());
    QVERIFY(m_window->windowTitle().contains("Drawing2"));

    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, tabs->tabRect(0).center());
    QCOMPARE(blocks().size(), std::size_t(1));
    QCOMPARE(tabs->currentIndex(), 0);

    qobject_cast<QToolButton*>(tabs->tabButton(1, QTabBar::RightSide))->click();
    QCOMPARE(tabs->tabText(0), QString("Drawing1"));
    type("CLOSE");
    QCOMPARE(tabs->count(), 0);
    QVERIFY(m_window->drawingArea().document() == nullptr);
    type("CLOSE");
    type("ZOOMEXTENTS");
    QVERIFY(!m_window->drawingArea().grab().isNull());
}

void MainWindowTest::wheelZoomsAroundTheCursorAndMiddleButtonPans()
{
    devhost::DrawingArea& area = m_window->drawingArea();
    const QPoint cursor(150, 90);
    const QPointF under = area.toModel(cursor);
    const double unitBefore = area.toModel({1.0, 0.0}).x() - area.toModel({0.0, 0.0}).x();
    QWheelEvent wheel(cursor, area.mapToGlobal(cursor), QPoint(), QPoint(0, 240), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&area, &wheel);
    const QPointF after = area.toModel(cursor);
    QVERIFY(qAbs(after.x() - under.x()) < 1e-9 && qAbs(after.y() - under.y()) < 1e-9);
    QVERIFY(area.toModel({1.0, 0.0}).x() - area.toModel({0.0, 0.0}).x() < unitBefore);

    QTest::mousePress(&area, Qt::MiddleButton, Qt::NoModifier, cursor);
    QMouseEvent move(QEvent::MouseMove, cursor + QPoint(40, -25), Qt::NoButton, Qt::MiddleButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(&area, &move);
    QTest::mouseRelease(&area, Qt::MiddleButton, Qt::NoModifier, cursor + QPoint(40, -25));
    QCOMPARE(area.toPixel(under), cursor + QPoint(40, -25));

    const QPointF centre = area.toModel(area.rect().center());
    place(m_file, [&] { type(QString("%1,%2").arg(centre.x()).arg(centre.y())); });
    for (int i = 0; i < 200; ++i) // To the limit, where painting dashes has to end as well.
        area.zoomIn();
    QVERIFY(!area.grab().isNull());
    for (int i = 0; i < 400; ++i)
        area.zoomOut();
    QVERIFY(!area.grab().isNull());
}

QTEST_MAIN(MainWindowTest)
#include "MainWindowTest.moc"
