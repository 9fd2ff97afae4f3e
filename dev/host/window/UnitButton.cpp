#include "dev/host/window/UnitButton.h"

#include <QActionGroup>
#include <QMenu>

namespace devhost
{

UnitButton::UnitButton(QWidget* parent) : QToolButton(parent)
{
    setObjectName("unit");
    setToolTip(
        "The drawing's unit. The catalog's drawings come in cm; what is inserted is converted from its "
        "file's unit.");
    setAutoRaise(true);
    setFocusPolicy(Qt::NoFocus);
    setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(this);
    auto* group = new QActionGroup(menu);
    for (const DrawingUnit unit : drawingUnitChoices()) {
        QAction* action = group->addAction(unitSymbol(unit));
        action->setCheckable(true);
        action->setData(static_cast<int>(unit));
        menu->addAction(action);
        connect(action, &QAction::triggered, this, [this, unit] { emit unitChosen(unit); });
    }
    setMenu(menu);
}

void UnitButton::showUnit(DrawingUnit unit)
{
    setText(QString("UNIT: %1").arg(unitSymbol(unit)));
    for (QAction* action : menu()->actions())
        action->setChecked(action->data().toInt() == static_cast<int>(unit));
}

} // namespace devhost
