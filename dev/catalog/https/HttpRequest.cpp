#include "dev/catalog/https/HttpRequest.h"

#include <QList>

namespace devcatalog
{

QVector<QByteArray> HttpRequest::headerValues(const QByteArray& name) const
{
    QVector<QByteArray> values;
    for (const auto& [each, value] : headers)
        if (each.compare(name, Qt::CaseInsensitive) == 0)
            values.append(value);
    return values;
}

QString HttpRequest::path() const
{
    return QString::fromUtf8(target.split('?').first());
}

QString HttpRequest::operation() const
{
    const QByteArray action = header("SOAPAction");
    return QString::fromUtf8(action.mid(action.lastIndexOf('/') + 1));
}

bool HttpRequest::readHead(const QByteArray& bytes)
{
    head = bytes;
    QList<QByteArray> lines = bytes.split('\n');
    const QList<QByteArray> requestLine = lines.takeFirst().trimmed().split(' ');
    if (requestLine.size() != 3 || requestLine.last() != "HTTP/1.1")
        return false;
    method = requestLine.at(0);
    target = requestLine.at(1);
    for (const QByteArray& line : qAsConst(lines)) {
        const int colon = line.indexOf(':');
        if (colon < 1)
            return false;
        headers.append({line.left(colon), line.mid(colon + 1).trimmed()});
    }
    return true;
}

} // namespace devcatalog
