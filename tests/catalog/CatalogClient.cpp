#include "tests/catalog/CatalogClient.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSslSocket>

#include <algorithm>

namespace test
{

namespace
{

constexpr int Patience = 20000; ///< ms

HttpAnswer parseAnswer(const QByteArray& bytes)
{
    const int headEnd = bytes.indexOf("\r\n\r\n");
    HttpAnswer answer;
    if (headEnd < 0)
        return answer;
    const QList<QByteArray> lines = bytes.left(headEnd).split('\n');
    answer.status = lines.first().split(' ').value(1).toInt();
    for (const QByteArray& line : lines)
        if (line.startsWith("Content-Type: "))
            answer.contentType = line.mid(14).trimmed();
    answer.body = bytes.mid(headEnd + 4);
    return answer;
}

} // namespace

QVector<QByteArray> SoapRequest::elements() const
{
    static const QRegularExpression element("<(\\w+)>[^<]*</\\1>");
    QVector<QByteArray> names;
    for (auto found = element.globalMatch(body); found.hasNext();)
        names.append(found.next().captured(1).toUtf8());
    return names;
}

QByteArray SoapRequest::element(const QByteArray& name) const
{
    const QRegularExpression element("<" + name + ">[^<]*</" + name + ">");
    return element.match(body).captured().toUtf8();
}

SoapRequest SoapRequest::with(const QByteArray& name, const QByteArray& text) const
{
    const QByteArray escaped = QString::fromUtf8(text).toHtmlEscaped().toUtf8();
    return replaced(element(name), "<" + name + ">" + escaped + "</" + name + ">");
}

SoapRequest SoapRequest::replaced(const QByteArray& part, const QByteArray& other) const
{
    Q_ASSERT(body.contains(part));
    SoapRequest request = *this;
    request.body.replace(part, other);
    return request;
}

SoapRequest SoapRequest::withHeader(const QByteArray& name, const QByteArray& value) const
{
    SoapRequest request = *this;
    const auto isNamed = [&name](const auto& header) { return header.first == name; };
    auto& all = request.headers;
    all.erase(std::remove_if(all.begin(), all.end(), isNamed), all.end());
    if (!value.isNull())
        all.append({name, value});
    return request;
}

QByteArray SoapRequest::toHttp() const
{
    QByteArray http = "POST " + path + " HTTP/1.1\r\nHost: localhost\r\n";
    for (const auto& [name, value] : headers)
        http += name + ": " + value + "\r\n";
    return http + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
}

QString HttpAnswer::text(const QString& element) const
{
    QDomDocument document;
    document.setContent(body);
    const QDomNode found = document.elementsByTagName(element).item(0);
    return found.isNull() ? QString() : found.toElement().text() + "";
}

CatalogClient::CatalogClient(int port, const QString& caFile)
    : m_port(port), m_tls(QSslConfiguration::defaultConfiguration())
{
    m_tls.addCaCertificates(caFile);
}

HttpAnswer CatalogClient::get(const QString& path) const
{
    return parseAnswer(exchange("GET " + path.toUtf8() + " HTTP/1.1\r\nHost: localhost\r\n\r\n"));
}

HttpAnswer CatalogClient::post(const SoapRequest& request) const
{
    return parseAnswer(exchange(request.toHttp()));
}

QByteArray CatalogClient::exchange(const QByteArray& bytes, qint64* sent) const
{
    QSslSocket socket;
    socket.setSslConfiguration(m_tls);
    QSignalSpy disconnected(&socket, &QSslSocket::disconnected);
    socket.connectToHostEncrypted("127.0.0.1", static_cast<quint16>(m_port));
    if (!socket.waitForEncrypted(Patience))
        return {};
    if (sent) {
        *sent = 0;
        QObject::connect(&socket, &QSslSocket::encryptedBytesWritten,
                         [sent](qint64 count) { *sent += count; });
    }
    socket.write(bytes);
    if (disconnected.isEmpty())
        disconnected.wait(Patience);
    return socket.readAll();
}

QString CatalogClient::address(const QString& path) const
{
    return QString("https://localhost:%1%2").arg(m_port).arg(path);
}

} // namespace test
