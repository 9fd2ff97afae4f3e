#pragma once

#include <QDockWidget>

class QPlainTextEdit;

namespace devhost
{

class Journal;

/// Shows the SDK calls as they come.
class JournalPanel final : public QDockWidget
{
    Q_OBJECT

public:
    /// @param journal not owned; may go before the panel does.
    explicit JournalPanel(const Journal& journal, QWidget* parent = nullptr);

private:
    QPlainTextEdit* m_text = nullptr;
};

} // namespace devhost
