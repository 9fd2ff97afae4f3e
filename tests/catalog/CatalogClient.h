#pragma once

#include <QByteArray>
#include <QPair>
#include <QSslConfiguration>
#include <QString>
#include <QVector>

namespace test
{

/// A posted request as it goes over the wire. A test takes a valid one and changes what it wants.
struct SoapRequest {
    QByteArray operation;
    QByteArray path;
    QVector<QPair<QByteArray, QByteArray>> headers; ///< Content-Length is added
    QByteArray body;

    /// The names of the operation's elements, in order.
    QVector<QByteArray> elements() const;
    /// An element of the operation with its tags.
    QByteArray element(const QByteArray& name) const;
    /// @return the same with another text in an element.
    SoapRequest with(const QByteArray& element, const QByteArray& text) const;
    /// @return the same with other bytes in the body; they must occur.
    SoapRequest replaced(const QByteArray& part, const QByteArray& other) const;
    /// @return the same with another header, or without it when the value is null.
    SoapRequest withHeader(const QByteArray& name, const QByteArray& value) const;

    QByteArray toHttp() const;
};

struct HttpAnswer {
    int status = 0; ///< 0 when none came
    QByteArray contentType;
    QByteArray body;

    /// @return the text of the first element of that name; null when there is none.
    QString text(const QString& element) const;
};

/// Talks to the development catalog on this machine, one connection a request, as its clients do.
class CatalogClient
{
public:
    /// @param caFile in PEM form.
    CatalogClient(int port, const QString& caFile);

    HttpAnswer get(const QString& path) const;
    HttpAnswer post(const SoapRequest& request) const;

    /// Sends bytes as they are; ends when the server has closed the connection.
    /// @param sent takes how many of them had gone out by then; may be null.
    QByteArray exchange(const QByteArray& bytes, qint64* sent = nullptr) const;

    QString address(const QString& path) const;

    const QSslConfiguration& tls() const { return m_tls; }

private:
    int m_port;
    QSslConfiguration m_tls;
};

} // namespace test
