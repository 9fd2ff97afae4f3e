#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

namespace devcatalog
{

/// One HTTP request as it came over the wire.
struct HttpRequest {
    QByteArray method;
    QByteArray target;                              ///< path with query
    QByteArray head;                                ///< request line and header lines, without the empty line
    QVector<QPair<QByteArray, QByteArray>> headers; ///< in their order; names as they were spelled
    QByteArray body;

    /// The values of that name in any letter case, in their order.
    QVector<QByteArray> headerValues(const QByteArray& name) const;
    /// The first of them; null when there is none.
    QByteArray header(const QByteArray& name) const { return headerValues(name).value(0); }
    /// The target up to its query, as it came.
    QString path() const;
    /// What follows the last slash of the SOAPAction; empty without one.
    QString operation() const;

    /// Reads request line and headers. @return false when they are not HTTP/1.1.
    bool readHead(const QByteArray& bytes);
};

} // namespace devcatalog
