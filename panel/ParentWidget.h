#pragma once

#include <QWidget>

#include <memory>

namespace Ui
{
class ParentWidget;
}

/// The container of the "2D" tab, in whose layout the pages replace one another.
class ParentWidget : public QWidget
{
    Q_OBJECT

public:
    explicit ParentWidget(QWidget* parent);
    ~ParentWidget() override;

private:
    std::unique_ptr<Ui::ParentWidget> m_form;
};
