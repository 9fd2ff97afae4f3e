#pragma once

#include <QEvent>
#include <QList>
#include <QObject>

namespace test
{

/// Counts the events of an object.
class EventCounter : public QObject
{
public:
    explicit EventCounter(QObject* watched) { watched->installEventFilter(this); }
    int count(QEvent::Type type) const { return m_types.count(type); }

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_types.append(event->type());
        return false;
    }

private:
    QList<QEvent::Type> m_types;
};

} // namespace test
