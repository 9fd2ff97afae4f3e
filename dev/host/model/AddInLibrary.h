#pragma once

#include <QLibrary>

class pvApplication_c;
class pvString;

namespace devhost
{

/// An add-in library file: loaded and driven through its three entry points, as a host does.
class AddInLibrary
{
public:
    /// @param file path of the library.
    explicit AddInLibrary(const QString& file);
    AddInLibrary(const AddInLibrary&) = delete;
    AddInLibrary& operator=(const AddInLibrary&) = delete;
    /// Unloads the library if it is still loaded; it does not disconnect.
    ~AddInLibrary();

    /// Loads the library and finds its entry points. @return false when either fails: see errorString().
    bool load();
    bool isLoaded() const { return m_connect != nullptr; }
    /// @return what went wrong in load().
    const QString& errorString() const { return m_errorString; }

    /// To be called only while loaded. @return what the entry point answered.
    /// @param application the host, borrowed to the add-in.
    bool connect(pvApplication_c* application);
    bool disconnect();
    /// @return the identifier that the add-in reports; empty when it reports none. Only while loaded.
    QString identifier() const;

    /// Unloads the library, which no code on the stack may belong to.
    /// @return whether its file is no longer part of the process.
    bool unload();
    /// @return whether the library's file is part of the process.
    bool isMapped() const;

private:
    using Connect = bool (*)(int, pvApplication_c*);
    using Disconnect = bool (*)();
    using HasSigned = bool (*)(pvString*, void*, void*, void*);

    /// @return the entry point; null with errorString() set when the library has none of that name.
    QFunctionPointer resolve(const char* name);
    void forgetEntryPoints();

    QLibrary m_library;
    QString m_errorString;
    Connect m_connect = nullptr;
    Disconnect m_disconnect = nullptr;
    HasSigned m_hasSigned = nullptr;
};

} // namespace devhost
