#include "dev/host/window/JournalPanel.h"

#include "dev/host/model/Journal.h"

#include <QFontDatabase>
#include <QPlainTextEdit>

namespace devhost
{

namespace
{

constexpr int ShownLines = 2000;
constexpr int SmallestWidth = 160; // Pixels.

} // namespace

JournalPanel::JournalPanel(const Journal& journal, QWidget* parent)
    : QDockWidget("SDK Calls", parent), m_text(new QPlainTextEdit(this))
{
    setObjectName("journalPanel");
    m_text->setObjectName("journalText");
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(ShownLines);
    m_text->setMinimumWidth(SmallestWidth);
    m_text->setFrameShape(QFrame::NoFrame);
    m_text->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_text->setPlainText(journal.lines().join('\n'));
    connect(&journal, &Journal::added, m_text, &QPlainTextEdit::appendPlainText);
    setWidget(m_text);
}

} // namespace devhost
