#include "dev/host/model/DraftingInterface.h"

#include "dev/host/model/HostApplication.h"

#include <cstring>

namespace devhost
{

namespace
{

// The ids name Menus, Tabs and Panels here; API identifiers are made of them.

struct Menu {
    const char* id;
    const char* caption;
};

struct MenuEntry {
    const char* menu;
    const char* caption; // Empty for a separator.
    const char* command;
};

struct Panel {
    const char* tab;
    const char* id; // Also the caption.
};

struct Button {
    const char* panel;
    const char* caption;
    const char* command;
};

constexpr Menu Menus[] = {
    {"File", "&File"},     {"Edit", "&Edit"},     {"View", "&View"}, {"Insert", "&Insert"},
    {"Import", "I&mport"}, {"Format", "F&ormat"}, {"Draw", "&Draw"}, {"Dimension", "Dime&nsion"},
    {"Modify", "Modif&y"}, {"Help", "&Help"},
};

constexpr MenuEntry MenuEntries[] = {
    {"File", "&New", "NEW"},
    {"File", "&Open…", "OPEN"},
    {"File", "&Close", "CLOSE"},
    {"File", "", ""},
    {"File", "&Save", "SAVE"},
    {"File", "Save &As…", "SAVEAS"},
    {"File", "&Plot…", "PLOT"},
    {"File", "", ""},
    {"File", "E&xit", "QUIT"},
    {"Edit", "&Undo", "UNDO"},
    {"Edit", "&Redo", "REDO"},
    {"Edit", "", ""},
    {"Edit", "&Erase", "ERASE"},
    {"View", "&Regenerate", "REGEN"},
    {"View", "", ""},
    {"View", "Zoom &Extents", "ZOOMEXTENTS"},
    {"View", "Zoom &In", "ZOOMIN"},
    {"View", "Zoom &Out", "ZOOMOUT"},
    {"View", "", ""},
    {"View", "&Grid", "GRID"},
    {"Insert", "&Block…", "INSERT"},
    {"Insert", "&Reference…", "ATTACH"},
    {"Insert", "&Image…", "IMAGEATTACH"},
    {"Import", "&Drawing…", "IMPORT"},
    {"Import", "&PDF Underlay…", "PDFATTACH"},
    {"Import", "&SVG…", "SVGIMPORT"},
    {"Import", "", ""},
    {"Import", "Import S&ettings…", "IMPORTSETTINGS"},
    {"Format", "&Layers…", "LAYER"},
    {"Format", "Line&types…", "LINETYPE"},
    {"Format", "&Units…", "UNITS"},
    {"Draw", "&Line", "LINE"},
    {"Draw", "&Polyline", "PLINE"},
    {"Draw", "&Circle", "CIRCLE"},
    {"Draw", "&Arc", "ARC"},
    {"Draw", "&Rectangle", "RECTANGLE"},
    {"Draw", "&Hatch…", "HATCH"},
    {"Draw", "&Text", "TEXT"},
    {"Dimension", "&Linear", "DIMLINEAR"},
    {"Dimension", "&Aligned", "DIMALIGNED"},
    {"Dimension", "&Radius", "DIMRADIUS"},
    {"Dimension", "&Diameter", "DIMDIAMETER"},
    {"Modify", "&Move", "MOVE"},
    {"Modify", "&Copy", "COPY"},
    {"Modify", "&Rotate", "ROTATE"},
    {"Modify", "M&irror", "MIRROR"},
    {"Modify", "&Offset", "OFFSET"},
    {"Modify", "&Trim", "TRIM"},
    {"Help", "&Commands", "HELP"},
};

constexpr const char* Tabs[] = {"Home", "Insert", "Annotate", "View", "Import"};

constexpr Panel Panels[] = {
    {"Home", "Draw"},     {"Home", "Modify"},      {"Home", "Annotation"}, {"Home", "Layers"},
    {"Insert", "Block"},  {"Insert", "Reference"}, {"Annotate", "Text"},   {"Annotate", "Dimensions"},
    {"View", "Navigate"}, {"View", "Display"},     {"Import", "Import"},   {"Import", "Underlay"},
};

constexpr Button Buttons[] = {
    {"Draw", "Line", "LINE"},
    {"Draw", "Polyline", "PLINE"},
    {"Draw", "Circle", "CIRCLE"},
    {"Draw", "Arc", "ARC"},
    {"Draw", "Rectangle", "RECTANGLE"},
    {"Draw", "Hatch", "HATCH"},
    {"Modify", "Undo", "UNDO"},
    {"Modify", "Redo", "REDO"},
    {"Modify", "Erase", "ERASE"},
    {"Modify", "Move", "MOVE"},
    {"Modify", "Copy", "COPY"},
    {"Modify", "Rotate", "ROTATE"},
    {"Modify", "Mirror", "MIRROR"},
    {"Modify", "Offset", "OFFSET"},
    {"Modify", "Trim", "TRIM"},
    {"Annotation", "Text", "TEXT"},
    {"Annotation", "Linear", "DIMLINEAR"},
    {"Layers", "Layers", "LAYER"},
    {"Block", "Insert", "INSERT"},
    {"Block", "Create", "BLOCK"},
    {"Reference", "Attach", "ATTACH"},
    {"Reference", "Image", "IMAGEATTACH"},
    {"Text", "Text", "TEXT"},
    {"Dimensions", "Linear", "DIMLINEAR"},
    {"Dimensions", "Aligned", "DIMALIGNED"},
    {"Dimensions", "Radius", "DIMRADIUS"},
    {"Dimensions", "Diameter", "DIMDIAMETER"},
    {"Navigate", "Extents", "ZOOMEXTENTS"},
    {"Navigate", "Zoom In", "ZOOMIN"},
    {"Navigate", "Zoom Out", "ZOOMOUT"},
    {"Navigate", "Regen", "REGEN"},
    {"Display", "Grid", "GRID"},
    {"Import", "Drawing", "IMPORT"},
    {"Import", "SVG", "SVGIMPORT"},
    {"Underlay", "PDF", "PDFATTACH"},
};

bool isSame(const char* id, const char* other)
{
    return std::strcmp(id, other) == 0;
}

void addMenus(HostApplication& application)
{
    for (const Menu& menu : Menus) {
        HostMenuItem& menuItem = application.addMenu(QString("ID_%1").arg(menu.id), menu.caption);
        for (const MenuEntry& entry : MenuEntries)
            if (isSame(entry.menu, menu.id))
                menuItem.addEntry(entry.caption, entry.command);
    }
}

void addButtons(HostRibbonRow& row, const char* panel)
{
    for (const Button& button : Buttons)
        if (isSame(button.panel, panel))
            row.addButton(QString("ID_%1").arg(button.command), {button.caption, button.command, QString()});
}

void addRibbon(HostApplication& application)
{
    HostWorkspace& workspace = application.addWorkspace("Drafting and Annotation");
    for (const char* tab : Tabs) {
        HostRibbonTab& ribbonTab = workspace.addTab(QString("ID_%1Tab").arg(tab), tab);
        for (const Panel& panel : Panels) {
            if (!isSame(panel.tab, tab))
                continue;
            HostRibbonPanel& ribbonPanel = ribbonTab.addPanel(QString("ID_%1Panel").arg(panel.id), panel.id,
                                                              QString("ID_%1PANELROW").arg(panel.id));
            addButtons(*ribbonPanel.row(), panel.id);
        }
    }
}

} // namespace

void addDraftingInterface(HostApplication& application)
{
    addMenus(application);
    addRibbon(application);
}

} // namespace devhost
