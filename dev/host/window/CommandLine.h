#pragma once

#include <QStringList>
#include <QWidget>

class QKeyEvent;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace devhost
{

/// The command line: a history of what was said, and a line to type into behind a prompt.
class CommandLine final : public QWidget
{
    Q_OBJECT

public:
    explicit CommandLine(QWidget* parent = nullptr);

    /// Appends a line to the history.
    void print(const QString& text);
    /// Asks for something else than a command until resetPrompt().
    void setPrompt(const QString& prompt);
    void resetPrompt();
    QString prompt() const;
    /// @return the history's lines, oldest first; the oldest are dropped at some point.
    QStringList history() const;

    /// @return the line to type into.
    QLineEdit* input() const { return m_input; }
    /// Puts a key that was typed elsewhere into the input line, and the focus with it.
    void takeKey(QKeyEvent* event);

signals:
    /// Return was pressed; the history has the line already, the input is empty again. @param text trimmed.
    void submitted(const QString& text);
    void escapePressed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void submit();
    void recall(int step);

    QPlainTextEdit* m_history = nullptr;
    QLabel* m_prompt = nullptr;
    QLineEdit* m_input = nullptr;
    QStringList m_typed; // What was submitted, for the arrow keys.
    int m_recalled = 0;
};

} // namespace devhost
