#pragma once

/// Sink for the events of a command. The add-in implements it and keeps it alive while it is registered; the
/// host never deletes it, which is why the destructor is protected and not virtual.
class pvCommandEvents_c
{
public:
    /// The command was run. @return true when it was handled.
    virtual bool ExecuteNotify() = 0;

protected:
    pvCommandEvents_c() = default;
    pvCommandEvents_c(const pvCommandEvents_c&) = default;
    pvCommandEvents_c& operator=(const pvCommandEvents_c&) = default;
    ~pvCommandEvents_c() = default;
};
