#pragma once

#include <QDockWidget>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

class QComboBox;
class QLabel;
class QMainWindow;
class QPushButton;
class QTabWidget;

namespace devhost
{

/// A row of search results as it is seen.
struct ResultRow {
    QString name;
    QString supplier;
    QString description;
    QPushButton* thumbnail = nullptr;

    bool hasPicture() const;
};

/// What of the add-in's pane is on the screen. Widgets are found by their object names, as they are after
/// each look: none is kept.
class PanePages
{
public:
    /// @param window must outlive this.
    explicit PanePages(const QMainWindow& window) : m_window(window) {}

    /// @return the dock with the pane, shown or not; null when there is none.
    QDockWidget* dock() const;
    /// @return the pane's tabs; null when they are not shown.
    QTabWidget* tabs() const;

    /// @return the pane's widget of that class and object name that is shown; null when there is none.
    template <class Widget = QWidget>
    Widget* shown(const QString& objectName = QString()) const
    {
        return shownIn<Widget>(dock(), objectName);
    }

    /// @return the rows of the results page, from top to bottom; none when the page is not shown.
    QVector<ResultRow> resultRows() const;
    QStringList resultNames() const;

    /// The detail page's widgets; null while the page is not shown.
    QWidget* detailPage() const { return shown<>("PreviewUI"); }
    QComboBox* viewList() const;
    QLabel* configurationName() const;
    /// @return the large picture whose click starts the download.
    QLabel* preview() const;

private:
    template <class Widget>
    static Widget* shownIn(const QWidget* parent, const QString& objectName = QString())
    {
        if (parent == nullptr)
            return nullptr;
        for (Widget* widget : parent->findChildren<Widget*>(objectName))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }

    const QMainWindow& m_window;
};

} // namespace devhost
