#include "dev/host/headless/PaneUser.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>

#include <algorithm>

namespace devhost
{

namespace
{

constexpr int SearchTab = 1;

} // namespace

QTabWidget* PaneUser::tabs() const
{
    const QWidget* pane = m_view.paneWidget();
    return pane == nullptr ? nullptr : pane->findChild<QTabWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

void PaneUser::openTab(int index) const
{
    tabs()->setCurrentIndex(index);
}

QWidget* PaneUser::page() const
{
    const QTabWidget* all = tabs();
    if (all == nullptr || all->currentIndex() != SearchTab)
        return all == nullptr ? nullptr : all->currentWidget();
    // The newest page is the last child, and nearly always the one in front.
    const QObjectList& pages = all->currentWidget()->children();
    const auto inFront = std::find_if(pages.rbegin(), pages.rend(), [](const QObject* page) {
        return page->isWidgetType() && static_cast<const QWidget*>(page)->isVisible();
    });
    return inFront == pages.rend() ? nullptr : static_cast<QWidget*>(*inFront);
}

bool PaneUser::isAt(const char* pageClass) const
{
    const QWidget* shownPage = page();
    return shownPage != nullptr && shownPage->inherits(pageClass);
}

QVector<QWidget*> PaneUser::rows() const
{
    QVector<QWidget*> all;
    const auto* table = shown<QTableWidget>("tableWidget");
    for (int row = 0; table != nullptr && row < table->rowCount(); ++row)
        if (QWidget* widget = table->cellWidget(row, 0))
            all.append(widget);
    return all;
}

bool PaneUser::hasPictures() const
{
    const QVector<QWidget*> all = rows();
    return !all.isEmpty() && std::all_of(all.begin(), all.end(), [](const QWidget* row) {
        return !row->findChild<QPushButton*>("iconpushButton")->icon().isNull();
    });
}

QStringList PaneUser::rowNames() const
{
    QStringList names;
    for (const QWidget* row : rows())
        names.append(row->findChild<QLabel*>("namevaluelabel")->text());
    return names;
}

QLabel* PaneUser::configurationName() const
{
    return detailLabel([](const QLabel& label) { return label.frameShape() == QFrame::Box; });
}

QLabel* PaneUser::preview() const
{
    return detailLabel([](const QLabel& label) { return label.inherits("ClickableLabel"); });
}

bool PaneUser::hasPart() const
{
    const QLabel* configuration = configurationName();
    const QLabel* picture = preview();
    return configuration != nullptr && !configuration->text().isEmpty() && picture != nullptr &&
           !picture->pixmap(Qt::ReturnByValue).isNull();
}

QLabel* PaneUser::detailLabel(bool (*isWanted)(const QLabel&)) const
{
    if (!isAt("PreviewUI"))
        return nullptr;
    for (QLabel* label : page()->findChildren<QLabel*>())
        if (isWanted(*label))
            return label;
    return nullptr;
}

void PaneUser::logIn(const QString& user, const QString& password) const
{
    openTab(0);
    shown<QLineEdit>("email_lineEdit")->setText(user);
    shown<QLineEdit>("Pass_lineEdit_2")->setText(password);
    QTest::mouseClick(shown<QPushButton>("LogIn_pushButton"), Qt::LeftButton);
}

void PaneUser::typeTerm(const QString& term) const
{
    QTest::keyClicks(shown<QLineEdit>("SearchLine"), term);
}

void PaneUser::pressReturn() const
{
    QTest::keyClick(shown<QLineEdit>("SearchLine"), Qt::Key_Return);
}

bool PaneUser::turnToPage(const QString& text) const
{
    for (QPushButton* button : page()->findChildren<QPushButton*>()) {
        if (button->text() == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return true;
        }
    }
    return false;
}

void PaneUser::openPart(int row) const
{
    QTest::mouseClick(rows().at(row)->findChild<QPushButton*>("iconpushButton"), Qt::LeftButton);
}

void PaneUser::chooseView(const QString& view) const
{
    shown<QComboBox>()->setCurrentText(view);
}

void PaneUser::clickPreview() const
{
    QTest::mouseClick(preview(), Qt::LeftButton);
}

void PaneUser::goBack() const
{
    QTest::mouseClick(shown<QPushButton>("pushButton"), Qt::LeftButton);
}

} // namespace devhost
