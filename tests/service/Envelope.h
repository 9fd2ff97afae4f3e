#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QStringList>

namespace test
{

/// A SOAP request taken apart by a parser other than the one that wrote it, so that requests are compared as
/// XML and not as bytes.
struct Envelope {
    QString fault; ///< why it is no envelope with one operation; empty when it is one
    QString version;
    QString encoding;
    QMap<QString, QString> prefixes; ///< declared by the root element
    QString operation;
    QString operationNamespace;
    QStringList parameters; ///< "name=text" in their order

    static Envelope read(const QByteArray& xml);
};

/// @return the first line that is not indented by a blank per level, with its number; empty when all are. One
///         element, or one of its tags, to a line.
QString layoutFault(const QByteArray& xml);

} // namespace test
