#include "tests/support/ScriptedReply.h"

#include <algorithm>

namespace test
{

namespace
{

const QByteArray LineEnd = "\r\n";

QByteArray headOf(int code, const QByteArray& contentType, int length)
{
    return "HTTP/1.1 " + QByteArray::number(code) + " Scripted" + LineEnd + //
           "Content-Type: " + contentType + LineEnd +                       //
           "Content-Length: " + QByteArray::number(length) + LineEnd + LineEnd;
}

} // namespace

QByteArray ScriptedReply::envelope(const QByteArray& content)
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>"
           "<soap:Envelope xmlns:soap=\"http://schemas.xmlsoap.org/soap/envelope/\"><soap:Body>" +
           content + "</soap:Body></soap:Envelope>";
}

ScriptedReply ScriptedReply::xml(const QByteArray& body)
{
    return status(200, body);
}

ScriptedReply ScriptedReply::status(int code, const QByteArray& body, const QByteArray& contentType)
{
    return {headOf(code, contentType, body.size()), body, Ending::KeepOpen};
}

ScriptedReply ScriptedReply::fault(const QString& text)
{
    return status(500, envelope("<soap:Fault><faultcode>soap:Server</faultcode><faultstring>" +
                                text.toHtmlEscaped().toUtf8() + "</faultstring></soap:Fault>"));
}

ScriptedReply ScriptedReply::result(const QString& operation, const QString& result)
{
    const QByteArray name = operation.toUtf8();
    return xml(envelope("<" + name + "Response><" + name + "Result>" + result.toHtmlEscaped().toUtf8() +
                        "</" + name + "Result></" + name + "Response>"));
}

ScriptedReply ScriptedReply::raw(const QByteArray& bytes)
{
    return {{}, bytes, Ending::Close};
}

ScriptedReply ScriptedReply::cutShort(const QByteArray& body, int missing)
{
    return {headOf(200, "text/xml; charset=utf-8", body.size() + missing), body, Ending::Close};
}

ScriptedReply ScriptedReply::reset()
{
    return {{}, {}, Ending::Reset};
}

ScriptedReply ScriptedReply::never()
{
    return {};
}

ScriptedReply ScriptedReply::withHeader(const QByteArray& name, const QByteArray& value) const
{
    ScriptedReply reply = *this;
    reply.m_head.insert(m_head.size() - LineEnd.size(), name + ": " + value + LineEnd);
    return reply;
}

ScriptedReply ScriptedReply::heldAfter(int bodyBytes) const
{
    return heldFrom(m_head.size() + std::min(bodyBytes, m_body.size()));
}

ScriptedReply ScriptedReply::heldFrom(int position) const
{
    ScriptedReply reply = *this;
    reply.m_heldFrom = position;
    return reply;
}

} // namespace test
