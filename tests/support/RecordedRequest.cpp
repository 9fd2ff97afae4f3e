#include "tests/support/RecordedRequest.h"

#include <QList>

#include <algorithm>

namespace test
{

QByteArray RecordedRequest::header(const QByteArray& name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&name](const auto& header) {
        return header.first.compare(name, Qt::CaseInsensitive) == 0;
    });
    return found == headers.end() ? QByteArray() : found->second;
}

QString RecordedRequest::path() const
{
    return QString::fromUtf8(target.split('?').first());
}

QString RecordedRequest::operation() const
{
    const QByteArray action = header("SOAPAction");
    return QString::fromUtf8(action.mid(action.lastIndexOf('/') + 1));
}

bool RecordedRequest::readHead(const QByteArray& bytes)
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

} // namespace test
