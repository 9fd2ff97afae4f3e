#include "dev/host/scenario/PaneSteps.h"

#include "dev/host/scenario/UserInput.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>

#include <algorithm>
#include <memory>

namespace devhost
{

namespace
{

const char LoggedIn[] = "Login is successful.";
const char NotLoggedIn[] = "Login is not successful.";
const char SearchLine[] = "SearchLine";
const char ResultsPage[] = "PartHarbor_2D";
const char BackButton[] = "pushButton"; // Of the results page and of the detail page.
constexpr int BrowsingTab = 1;

QString quoted(const QStringList& texts)
{
    return '"' + texts.join("\", \"") + '"';
}

/// @return what a person calls the pages behind those buttons.
QString namesOf(const QStringList& pages)
{
    QStringList names;
    for (const QString& page : pages)
        names.append(page == "<" ? "the previous page" : page == ">" ? "the next page" : "page " + page);
    return names.join(", ");
}

int countDifferentPictures(const QVector<ResultRow>& rows)
{
    constexpr int edge = 256; // Pixels; larger than a thumbnail, which is not enlarged.
    QVector<QImage> pictures;
    for (const ResultRow& row : rows) {
        const QImage picture = row.thumbnail->icon().pixmap(edge, edge).toImage();
        if (!pictures.contains(picture))
            pictures.append(picture);
    }
    return pictures.size();
}

} // namespace

PaneSteps::PaneSteps(const QMainWindow& window) : m_pages(window)
{
}

TourStep PaneSteps::typeText(const QString& name, const QString& line, const QString& text) const
{
    TourStep step;
    step.name = name;
    step.act = [=] { return userInput::typeInto(m_pages.shown<QLineEdit>(line), text); };
    step.look = [=]() -> Observation {
        const auto* edit = m_pages.shown<QLineEdit>(line);
        if (edit == nullptr)
            return {false, "the line is not shown"};
        const bool isSecret = edit->echoMode() != QLineEdit::Normal;
        return {edit->text() == text && (!isSecret || edit->displayText() != text),
                QString("the line shows \"%1\"").arg(edit->displayText())};
    };
    return step;
}

TourStep PaneSteps::typeEmail(const QString& address) const
{
    return typeText("Type the e-mail address", "email_lineEdit", address);
}

TourStep PaneSteps::typePassword(const QString& password) const
{
    return typeText("Type the password", "Pass_lineEdit_2", password);
}

TourStep PaneSteps::logIn() const
{
    TourStep step;
    step.name = "Log in";
    step.act = [this] { return userInput::click(m_pages.shown<QPushButton>("LogIn_pushButton")); };
    step.box = LoggedIn;
    step.seconds = 10;
    step.retryBox = NotLoggedIn;
    return step;
}

TourStep PaneSteps::failToLogIn() const
{
    TourStep step = logIn();
    step.name = "Log in with a wrong password";
    step.box = NotLoggedIn;
    step.retryBox.clear();
    return step;
}

TourStep PaneSteps::openBrowsing() const
{
    TourStep step;
    step.name = "Open the second tab";
    step.act = [this] {
        const QTabWidget* tabs = m_pages.tabs();
        return userInput::clickTab(tabs != nullptr ? tabs->tabBar() : nullptr, BrowsingTab);
    };
    step.look = [this]() -> Observation {
        const bool isShown = m_pages.shown<QLineEdit>(SearchLine) != nullptr;
        return {isShown, isShown ? "the search line is shown" : "no search line is shown"};
    };
    return step;
}

TourStep PaneSteps::typeTerm(const QString& term) const
{
    return typeText("Type the search term", SearchLine, term);
}

TourStep PaneSteps::pressReturn() const
{
    TourStep step;
    step.name = "Press Return";
    step.act = [] { return userInput::press(Qt::Key_Return); };
    step.look = [this] { return lookForResults({}); };
    return step;
}

TourStep PaneSteps::clickSearch() const
{
    TourStep step = pressReturn();
    step.name = "Click the search button";
    step.act = [this] { return userInput::click(m_pages.shown<QPushButton>("SearchButton")); };
    return step;
}

TourStep PaneSteps::turnPage(const QString& page) const
{
    return turnPages({page});
}

TourStep PaneSteps::turnPages(const QStringList& pages) const
{
    const auto before = std::make_shared<QStringList>();
    TourStep step;
    step.name = "Turn to " + namesOf(pages);
    step.act = [=]() -> QString {
        *before = m_pages.resultNames();
        for (const QString& page : pages) {
            QString problem = clickPageButton(page);
            if (!problem.isEmpty())
                return problem;
        }
        return QString();
    };
    step.look = [=] { return lookForResults(*before); };
    return step;
}

TourStep PaneSteps::openResult(int row) const
{
    const auto name = std::make_shared<QString>();
    TourStep step;
    step.name = QString("Open result %1").arg(row + 1);
    step.act = [=] {
        *name = m_pages.resultNames().value(row);
        return openRow(row);
    };
    step.look = [=] { return lookForDetails(*name); };
    return step;
}

TourStep PaneSteps::openResultWhileTurning(int row, const QString& page) const
{
    TourStep step = openResult(row);
    step.name += " while a page is on its way";
    const auto open = step.act;
    step.act = [=] {
        const QString problem = clickPageButton(page);
        return problem.isEmpty() ? open() : problem;
    };
    return step;
}

TourStep PaneSteps::openViews() const
{
    TourStep step;
    step.name = "Open the list of views";
    step.act = [this] { return userInput::click(m_pages.viewList()); };
    step.look = [this]() -> Observation {
        const QComboBox* views = m_pages.viewList();
        const bool isOpen = views != nullptr && views->view()->isVisible();
        return {isOpen,
                isOpen ? QString("%1 views are listed").arg(views->count()) : QString("no list is open")};
    };
    return step;
}

TourStep PaneSteps::chooseView(const QString& view) const
{
    TourStep step;
    step.name = "Choose the view" + view;
    step.act = [=]() -> QString {
        const QComboBox* views = m_pages.viewList();
        if (views == nullptr)
            return "no list is shown";
        return userInput::clickItem(views->view(), views->model()->index(views->findText(view), 0));
    };
    step.look = [=]() -> Observation {
        const QComboBox* views = m_pages.viewList();
        if (views == nullptr || views->view()->isVisible())
            return {false, "the list is still open"};
        return {views->currentText() == view, QString("the view is \"%1\"").arg(views->currentText())};
    };
    return step;
}

TourStep PaneSteps::goBackToResults() const
{
    TourStep step;
    step.name = "Go back to the results";
    step.act = [this] {
        QWidget* page = m_pages.detailPage();
        return userInput::click(page != nullptr ? page->findChild<QPushButton*>(BackButton) : nullptr);
    };
    step.look = [this] { return lookForResults({}); };
    return step;
}

TourStep PaneSteps::goBackToSearch() const
{
    TourStep step;
    step.name = "Go back to the search";
    step.act = [this] {
        QWidget* page = m_pages.shown<>(ResultsPage);
        return userInput::click(page != nullptr ? page->findChild<QPushButton*>(BackButton) : nullptr);
    };
    step.look = [this]() -> Observation {
        const auto* line = m_pages.shown<QLineEdit>(SearchLine);
        if (line == nullptr)
            return {false, "no search line is shown"};
        return {line->text().isEmpty(), QString("the search line shows \"%1\"").arg(line->text())};
    };
    return step;
}

QString PaneSteps::clickPageButton(const QString& page) const
{
    const QWidget* results = m_pages.shown<>(ResultsPage);
    if (results == nullptr)
        return "no results are shown";
    for (QPushButton* button : results->findChildren<QPushButton*>())
        if (button->text() == page)
            return userInput::click(button);
    return QString("no button shows \"%1\"").arg(page);
}

QString PaneSteps::openRow(int row) const
{
    return userInput::click(m_pages.resultRows().value(row).thumbnail);
}

Observation PaneSteps::lookForResults(const QStringList& before) const
{
    const QVector<ResultRow> rows = m_pages.resultRows();
    const QStringList names = m_pages.resultNames();
    if (rows.isEmpty())
        return {false, "no results are shown"};
    if (names == before)
        return {false, "still the same results: " + quoted(names)};
    const auto pictures =
        std::count_if(rows.begin(), rows.end(), [](const ResultRow& row) { return row.hasPicture(); });
    if (pictures < rows.size())
        return {false, QString("%1 results, %2 of them with a picture: %3")
                           .arg(rows.size())
                           .arg(pictures)
                           .arg(quoted(names))};
    const int different = countDifferentPictures(rows);
    return {different > 1 || rows.size() == 1, QString("%1 results with %2 different pictures: %3")
                                                   .arg(rows.size())
                                                   .arg(different)
                                                   .arg(quoted(names))};
}

Observation PaneSteps::lookForDetails(const QString& name) const
{
    const QWidget* page = m_pages.detailPage();
    if (page == nullptr)
        return {false, "no detail page is shown"};
    const auto* shownName = page->findChild<QLabel*>("namevaluelabel");
    const QLabel* configuration = m_pages.configurationName();
    const QLabel* preview = m_pages.preview();
    const bool hasPreview = preview != nullptr && preview->pixmap(Qt::ReturnByValue).width() > 0;
    const QString seenName = shownName != nullptr ? shownName->text() : QString();
    const QString seenConfiguration = configuration != nullptr ? configuration->text() : QString();
    return {seenName == name && !seenConfiguration.isEmpty() && hasPreview,
            QString("\"%1\" in the configuration \"%2\", %3")
                .arg(seenName, seenConfiguration, hasPreview ? "with its preview" : "without a preview")};
}

} // namespace devhost
