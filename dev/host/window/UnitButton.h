#pragma once

#include "dev/host/model/DrawingUnit.h"

#include <QToolButton>

namespace devhost
{

/// Shows what the active drawing's numbers stand for, and lets the user choose another unit.
class UnitButton final : public QToolButton
{
    Q_OBJECT

public:
    explicit UnitButton(QWidget* parent = nullptr);

    void showUnit(DrawingUnit unit);

signals:
    void unitChosen(DrawingUnit unit);
};

} // namespace devhost
