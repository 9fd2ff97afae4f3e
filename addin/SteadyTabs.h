#pragma once

#include <QObject>
#include <QSize>
#include <QVector>

class QTabWidget;

/// Keeps from a tab widget the layout requests that change no size which it looks at. It would lay itself out
/// and repaint its whole page for each, and any text or picture that changes on a page sends several.
class SteadyTabs : public QObject
{
    Q_OBJECT

public:
    /// @param tabs owns the object.
    explicit SteadyTabs(QTabWidget* tabs);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QTabWidget* m_tabs;
    QVector<QSize> m_sizes; ///< At the last request that it got.
};
