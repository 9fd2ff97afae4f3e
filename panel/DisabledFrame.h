#pragma once

#include <QList>

class QWidget;

/// Disables a frame for its lifetime, within one event. A disabled frame does not keep the focus, so it is
/// given back. Nobody can see the frame disabled, so it is not painted for that: each of its widgets would
/// ask for it.
class DisabledFrame
{
public:
    /// @param frame not owned; has to live longer, and so have its widgets.
    explicit DisabledFrame(QWidget* frame);
    ~DisabledFrame();
    DisabledFrame(const DisabledFrame&) = delete;
    DisabledFrame& operator=(const DisabledFrame&) = delete;

private:
    void setPainted(bool painted);

    QWidget* m_frame;
    QWidget* m_focused;
    QList<QWidget*> m_unpainted;
};
