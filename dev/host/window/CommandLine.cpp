#include "dev/host/window/CommandLine.h"

#include <QFontDatabase>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace devhost
{

namespace
{

const char CommandPrompt[] = "Command:";
constexpr int HistoryLines = 500;

bool isEditingKey(const QKeyEvent& key)
{
    return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo) ||
           key.matches(QKeySequence::Delete);
}

} // namespace

CommandLine::CommandLine(QWidget* parent)
    : QWidget(parent),
      m_history(new QPlainTextEdit(this)),
      m_prompt(new QLabel(CommandPrompt, this)),
      m_input(new QLineEdit(this))
{
    setObjectName("commandLine");
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);

    m_history->setObjectName("commandHistory");
    m_history->setAccessibleName("Command history");
    m_history->setReadOnly(true);
    m_history->setFocusPolicy(Qt::ClickFocus);
    m_history->setMaximumBlockCount(HistoryLines);
    m_history->setFrameShape(QFrame::NoFrame);
    m_history->setFont(font);
    m_history->setMinimumHeight(2 * m_history->fontMetrics().height()); // A line and its margins.

    m_prompt->setObjectName("commandPrompt");
    m_prompt->setFont(font);
    m_prompt->setBuddy(m_input);

    m_input->setObjectName("commandInput");
    m_input->setAccessibleName("Command line");
    m_input->setFont(font);
    m_input->setFrame(false);
    m_input->installEventFilter(this);
    connect(m_input, &QLineEdit::returnPressed, this, &CommandLine::submit);

    auto* line = new QHBoxLayout;
    line->setContentsMargins(6, 3, 6, 3);
    line->addWidget(m_prompt);
    line->addWidget(m_input, 1);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_history, 1);
    layout->addLayout(line);
}

void CommandLine::print(const QString& text)
{
    m_history->appendPlainText(text);
}

void CommandLine::setPrompt(const QString& prompt)
{
    m_prompt->setText(prompt);
}

void CommandLine::resetPrompt()
{
    setPrompt(CommandPrompt);
}

QString CommandLine::prompt() const
{
    return m_prompt->text();
}

QStringList CommandLine::history() const
{
    return m_history->toPlainText().split('\n');
}

void CommandLine::takeKey(QKeyEvent* event)
{
    m_input->activateWindow(); // A floating pane may have the keyboard.
    m_input->setFocus(Qt::OtherFocusReason);
    QKeyEvent forwarded(event->type(), event->key(), event->modifiers(), event->text());
    m_input->event(&forwarded);
}

bool CommandLine::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride && m_input->text().isEmpty() &&
        isEditingKey(*static_cast<QKeyEvent*>(event))) {
        event->ignore();
        return true; // An empty line has nothing to edit; the keys are the drawing's.
    }
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape:
        m_input->clear();
        emit escapePressed();
        return true;
    case Qt::Key_Up:
        recall(-1);
        return true;
    case Qt::Key_Down:
        recall(1);
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}

void CommandLine::submit()
{
    const QString text = m_input->text().trimmed();
    m_input->clear();
    if (!text.isEmpty()) {
        m_typed.append(text);
        print(m_prompt->text() + ' ' + text);
    }
    m_recalled = m_typed.size();
    emit submitted(text);
}

void CommandLine::recall(int step)
{
    m_recalled = qBound(0, m_recalled + step, m_typed.size());
    m_input->setText(m_typed.value(m_recalled));
}

} // namespace devhost
