#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>
#include <QVector>

namespace test
{

/// One HTTP request as it came over the wire.
struct RecordedRequest {
    QByteArray method;
    QByteArray target;                              ///< path with query
    QByteArray head;                                ///< request line and header lines, without the empty line
    QVector<QPair<QByteArray, QByteArray>> headers; ///< in their order; names as they were spelled
    QByteArray body;

    /// The first value of that name in any letter case; null when there is none.
    QByteArray header(const QByteArray& name) const;
    /// The target up to its query.
    QString path() const;
    /// What follows the last slash of the SOAPAction; empty without one.
    QString operation() const;

    /// Reads request line and headers. @return false when they are not HTTP/1.1.
    bool readHead(const QByteArray& bytes);
};

} // namespace test
