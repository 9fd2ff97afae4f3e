#pragma once

#include "dev/host/model/HostContext.h"
#include "dev/host/model/SdkCall.h"

#include <memory>

namespace devhost
{

/// Base of the host's objects: one SDK interface, with its references counted.
///
/// The host owns its objects by std::shared_ptr. References taken through AddRef() are the caller's; an
/// object that the host has dropped stays as long as there are any.
/// @tparam Interface SDK class, derived from pvObject.
template <class Interface>
class HostObject : public Interface, public std::enable_shared_from_this<HostObject<Interface>>
{
public:
    void AddRef() final
    {
        if (m_references++ == 0)
            m_kept = this->shared_from_this();
        m_context->references.taken();
    }

    void Release() final
    {
        if (m_references == 0) {
            m_context->references.releasedTooOften(m_subject);
            return;
        }
        m_context->references.givenBack();
        if (--m_references == 0)
            std::shared_ptr<HostObject>().swap(m_kept); // May end this object, so nothing follows.
    }

    /// @return the references that callers hold.
    int references() const { return m_references; }
    /// @return what tells this object from others of its class in the journal.
    const QString& id() const { return m_id; }

protected:
    /// @param subject SDK class without "pv" and "_c", empty for the application.
    explicit HostObject(std::shared_ptr<HostContext> context, const char* subject, QString id = QString())
        : m_context(std::move(context)), m_subject(QString::fromLatin1(subject)), m_id(std::move(id))
    {
    }

    HostContext& context() const { return *m_context; }
    const std::shared_ptr<HostContext>& sharedContext() const { return m_context; }

    /// Begins the answer to an SDK call of this object.
    template <class... Arguments>
    SdkCall call(const char* method, const Arguments&... arguments) const
    {
        return SdkCall(*m_context, m_subject, m_id, method, arguments...);
    }

private:
    std::shared_ptr<HostContext> m_context;
    QString m_subject;
    QString m_id;
    int m_references = 0;
    std::shared_ptr<HostObject> m_kept; // Set while there are references.
};

} // namespace devhost
