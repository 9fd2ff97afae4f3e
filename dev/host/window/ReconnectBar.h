#pragma once

#include <QFrame>

class QLabel;

namespace devhost
{

/// A line above the drawing that says what the add-in learns at its next connect, and offers that connect.
/// Hidden until there is something to say.
class ReconnectBar final : public QFrame
{
    Q_OBJECT

public:
    explicit ReconnectBar(QWidget* parent = nullptr);

    /// Shows the bar. @param consequence what the next connect brings, as a sentence.
    void offer(const QString& consequence);

signals:
    void reconnectChosen();

private:
    QLabel* m_text = nullptr;
};

} // namespace devhost
