#pragma once

#include "tests/catalog/CatalogClient.h"

#include <QByteArray>
#include <QVector>

namespace test
{

/// What a client holds once it has logged in, and the part that it asks for. UTF-8, not escaped.
struct ClientValues {
    QByteArray sessionId;
    QByteArray apiKey;
    QByteArray userToken;
    QByteArray supplier;
    QByteArray model;
    QByteArray configuration;
};

/// An operation as a client of the service writes it: what the test holds the service's own table against.
struct RightForm {
    QByteArray operation;
    QByteArray path;
    QVector<QPair<QByteArray, QByteArray>> elements; ///< name and value, in order

    QByteArray& value(const QByteArray& element);

    /// @param serviceHost "host:port" of the service's namespace.
    SoapRequest request(const QByteArray& serviceHost) const;
};

/// @return the seven operations in the order in which a client sends them.
QVector<RightForm> rightForms(const ClientValues& values);

/// The line of an element in a request's body.
QByteArray elementLine(const QByteArray& name, const QByteArray& value);

} // namespace test
