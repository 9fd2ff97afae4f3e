#include "panel/ParentWidget.h"

#include "ui_ParentWidget.h"

ParentWidget::ParentWidget(QWidget* parent) : QWidget(parent), m_form(std::make_unique<Ui::ParentWidget>())
{
    m_form->setupUi(this);
}

ParentWidget::~ParentWidget() = default;
