#pragma once

#include "dev/host/headless/HeadlessView.h"

#include <QStringList>
#include <QVector>

class QLabel;
class QTabWidget;

namespace devhost
{

/// A user of the add-in's pane in a host without a window: looks at the page that is shown, and clicks and
/// types there. Nothing waits for an outcome, and no step costs more for pages that were left.
class PaneUser
{
public:
    /// @param view the host's; must outlive this.
    explicit PaneUser(const HeadlessView& view) : m_view(view) {}

    /// @return the page in front: of the tab that is open, the one that is not hidden; null when there is
    /// none.
    QWidget* page() const;
    /// @return whether the page in front is of that class.
    bool isAt(const char* pageClass) const;
    /// @return the widget of that class and name that the page in front shows; null when there is none.
    template <class Widget = QWidget>
    Widget* shown(const QString& name = QString()) const
    {
        if (const QWidget* shownPage = page())
            for (Widget* widget : shownPage->findChildren<Widget*>(name))
                if (widget->isVisible())
                    return widget;
        return nullptr;
    }

    /// @return the result rows that are shown, from top to bottom.
    QVector<QWidget*> rows() const;
    QStringList rowNames() const;
    /// @return whether there are rows, and each has its picture.
    bool hasPictures() const;
    /// The labels of the shown detail page; null when none is shown.
    QLabel* configurationName() const;
    QLabel* preview() const;
    /// @return whether the detail page shows its configuration and its picture.
    bool hasPart() const;

    /// Goes to the login page, and sends the form.
    void logIn(const QString& user, const QString& password) const;
    void openSearchTab() const { openTab(1); }
    /// On the main panel: types the term, and then Return.
    void typeTerm(const QString& term) const;
    void pressReturn() const;
    /// @return whether the results page has a button of that text to click.
    bool turnToPage(const QString& text) const;
    /// Clicks the row's thumbnail.
    void openPart(int row) const;
    void chooseView(const QString& view) const;
    void clickPreview() const;
    void goBack() const;

private:
    QTabWidget* tabs() const;
    void openTab(int index) const;
    QLabel* detailLabel(bool (*isWanted)(const QLabel&)) const;

    const HeadlessView& m_view;
};

} // namespace devhost
