#pragma once

#include "dev/catalog/https/HttpsConnection.h"

#include <QByteArray>
#include <QString>

namespace test
{

/// What a ScriptedService sends for one request, and how that ends. A value.
class ScriptedReply
{
public:
    using Ending = devcatalog::HttpsConnection::Ending;

    /// As never().
    ScriptedReply() = default;
    /// A SOAP 1.1 envelope around what it is given.
    static QByteArray envelope(const QByteArray& content);
    /// Status 200 with an XML body.
    static ScriptedReply xml(const QByteArray& body);
    static ScriptedReply status(int code, const QByteArray& body = {},
                                const QByteArray& contentType = "text/xml; charset=utf-8");
    /// Status 500 with a SOAP 1.1 Fault. @param text its faultstring, plain text.
    static ScriptedReply fault(const QString& text);
    /// A reply of an operation: an envelope whose "<operation>Result" holds @p result as plain text.
    static ScriptedReply result(const QString& operation, const QString& result);
    /// Exactly these bytes in place of an HTTP response, then the end of the connection.
    static ScriptedReply raw(const QByteArray& bytes);
    /// Status 200 that promises @p missing bytes more than it brings, then the end of the connection.
    static ScriptedReply cutShort(const QByteArray& body, int missing = 1);
    /// A TCP reset and no byte.
    static ScriptedReply reset();
    /// No byte, and the connection stays.
    static ScriptedReply never();

    ScriptedReply withHeader(const QByteArray& name, const QByteArray& value) const;
    /// The same, sent when ScriptedService::release() says so.
    ScriptedReply held() const { return heldFrom(0); }
    /// The same; the head and the first bytes of the body go at once, the rest waits for release().
    ScriptedReply heldAfter(int bodyBytes) const;

    /// What goes over the wire.
    QByteArray bytes() const { return m_head + m_body; }
    QByteArray body() const { return m_body; }
    /// The position in bytes() from which they wait for release(); -1 for none.
    int heldFrom() const { return m_heldFrom; }
    Ending ending() const { return m_ending; }

private:
    ScriptedReply(const QByteArray& head, const QByteArray& body, Ending ending)
        : m_head(head), m_body(body), m_ending(ending)
    {
    }
    ScriptedReply heldFrom(int position) const;

    QByteArray m_head; ///< up to and with the empty line
    QByteArray m_body;
    Ending m_ending = Ending::KeepOpen;
    int m_heldFrom = -1;
};

} // namespace test
