#pragma once

/// Base of every host object: counted references, and a class that can be asked for with dynamic_cast.
///
/// A pointer that any host call hands out, and the one given to connectToPlotvane, is borrowed: the caller
/// neither owns a reference nor gives one back. Who wants to keep an object puts it into a pvInterfacePtr.
class pvObject
{
public:
    pvObject() = default;
    pvObject(const pvObject&) = delete;
    pvObject& operator=(const pvObject&) = delete;

    /// Takes one reference.
    virtual void AddRef() = 0;
    /// Gives one reference back; with the last one the host drops the object.
    virtual void Release() = 0;

protected:
    virtual ~pvObject() = default;
};
