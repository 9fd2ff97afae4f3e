#pragma once

#include <QObject>

class QAbstractItemView;

/// Has a view follow its headers before it is painted. By itself a view puts that off by a timer, and all of
/// it is painted once before and once after.
class PromptView : public QObject
{
    Q_OBJECT

public:
    /// @param view a table or a tree, which owns the object.
    explicit PromptView(QAbstractItemView* view);

public slots:
    /// Follows the headers at once.
    void follow();

private slots:
    void followLater();

private:
    void ringTimers();

    QAbstractItemView* m_view;
    bool m_follows = false;
};
