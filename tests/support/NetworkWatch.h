#pragma once

#include <QObject>
#include <QPointer>
#include <QVector>

namespace test
{

/// The network managers and replies that this thread has made since the watch was. A manager has no owner
/// that a test could ask, so the watch sees them by their children.
class NetworkWatch : public QObject
{
    Q_OBJECT

public:
    NetworkWatch();

    /// Whether none of them is left.
    bool isIdle() const;
    /// Whether one has bytes that its asker has not taken yet.
    bool isHalfRead() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QVector<QPointer<QObject>> m_seen;
};

} // namespace test
