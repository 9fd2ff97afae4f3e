#pragma once

#include <QLabel>

/// A label with a link that lets the focus go backwards (Qt's own finds its link again with every
/// Backtab and keeps it), and whose text can be selected but not dragged: during a drag the event loop runs,
/// and Qt's label does not survive that the pane goes meanwhile.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    bool focusNextPrevChild(bool next) override;
    void mousePressEvent(QMouseEvent* event) override;
};
