#pragma once

#include "service/ServiceOperations.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>
#include <optional>

class QNetworkReply;
class QObject;

/// A value that a request fills into its template: the first element of that name gets the text.
struct SoapValue {
    const char* element;
    QString text;
};

/// Fills an operation's template.
/// @param operation whose template.
/// @param values the elements to fill, in order.
/// @return the envelope to post, indented by one space per level, empty where the template is no XML; nothing
///         when the template cannot be opened.
std::optional<QByteArray> soapRequestBody(const ServiceOperation& operation,
                                          std::initializer_list<SoapValue> values);

/// Fills an operation's template and posts it.
///
/// The reply comes through the event loop, however the request ends. Its slot makes a SoapReply of it, which
/// releases reply and network manager; if the asker is destroyed before that, both go with it. A reply that
/// brings more than MaximumXmlLength bytes is ended there.
/// @param operation what to send.
/// @param values the elements to fill, in order.
/// @param asker receives the reply; not owned.
/// @param replySlot SLOT() of the asker that takes a QNetworkReply*.
/// @return the reply under way, owned by its network manager; null when nothing was sent: the envelope is
///         empty, or the template could not be opened and an error box has said so, during which the asker
///         may have gone.
QNetworkReply* sendSoapRequest(const ServiceOperation& operation, std::initializer_list<SoapValue> values,
                               QObject* asker, const char* replySlot);
