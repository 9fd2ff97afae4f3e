#pragma once

#include <QLabel>

/// A label with a link that lets the focus go backwards: the toolkit's own finds its link again with every
/// Backtab and keeps it.
class LinkLabel : public QLabel
{
    Q_OBJECT

public:
    using QLabel::QLabel;

protected:
    bool focusNextPrevChild(bool next) override;
};
