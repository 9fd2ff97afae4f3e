#pragma once

#include <QDialog>

class QFormLayout;
class QMenuBar;
class QToolBar;

namespace devhost
{

/// The standard widgets, enabled and disabled side by side, in a style sheet: shows whether the sheet covers
/// them.
class WidgetGallery final : public QDialog
{
    Q_OBJECT

public:
    /// @param styleSheetPath file or resource of the style sheet; without one the widgets are as they are.
    explicit WidgetGallery(const QString& styleSheetPath, QWidget* parent = nullptr);

private:
    QMenuBar* createMenuBar();
    QToolBar* createToolBar();
    QWidget* createColumn(const QString& title, bool enabled);
    void addButtons(QFormLayout& form);
    void addInputs(QFormLayout& form);
    void addNumbers(QFormLayout& form);
    void addViews(QFormLayout& form);
    void addContainers(QFormLayout& form);
};

} // namespace devhost
