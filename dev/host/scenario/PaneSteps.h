#pragma once

#include "dev/host/scenario/PanePages.h"
#include "dev/host/scenario/TourStep.h"

class QLineEdit;

namespace devhost
{

/// What a user does on the pages of the add-in's pane: log in, search, turn pages, open a part.
class PaneSteps
{
public:
    /// @param window must outlive the steps.
    explicit PaneSteps(const QMainWindow& window);

    TourStep typeEmail(const QString& address) const;
    TourStep typePassword(const QString& password) const;
    /// Outcome: a box says that the login is successful. Tried again where it is not, for the add-in has to
    /// get its own key from the service first, which nobody sees.
    TourStep logIn() const;
    /// Outcome: a box says that the login is not successful.
    TourStep failToLogIn() const;

    /// Outcome: the search line is shown.
    TourStep openBrowsing() const;
    TourStep typeTerm(const QString& term) const;
    /// Outcome: a page of results, every row with a picture.
    TourStep pressReturn() const;
    TourStep clickSearch() const;

    /// Outcome: other results than before, every row with a picture.
    /// @param page what the page button shows.
    TourStep turnPage(const QString& page) const;
    /// Asks for several pages before the first has come. Outcome: as of turnPage, for one of the pages.
    TourStep turnPages(const QStringList& pages) const;
    /// Outcome: the detail page of that result with its configuration and its preview.
    TourStep openResult(int row) const;
    /// Asks for another page, and opens a result before it has come. Outcome: as of openResult.
    TourStep openResultWhileTurning(int row, const QString& page) const;
    /// Outcome: the list of views is open.
    TourStep openViews() const;
    /// Outcome: the view is the chosen one.
    TourStep chooseView(const QString& view) const;
    /// Outcome: the page of results again.
    TourStep goBackToResults() const;
    /// Outcome: the empty search line.
    TourStep goBackToSearch() const;

private:
    TourStep typeText(const QString& name, const QString& line, const QString& text) const;
    QString clickPageButton(const QString& page) const;
    QString openRow(int row) const;
    Observation lookForResults(const QStringList& before) const;
    Observation lookForDetails(const QString& name) const;

    PanePages m_pages;
};

} // namespace devhost
