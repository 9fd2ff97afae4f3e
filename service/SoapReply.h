#pragma once

#include <QDomDocument>
#include <QString>

#include <optional>

class QNetworkReply;

/// Reads a reply's body as UTF-8, nothing of one that was ended for its length, and arranges the release of
/// reply and network manager.
QString takeText(QNetworkReply* reply);

/// The opened reply to one request. Network errors, HTTP errors and faults are not looked at: they show as a
/// document without the wanted element.
class SoapReply
{
public:
    /// Passes the gate, a resource that proves the bundle to be there, and parses the text.
    /// @return nothing when the gate is closed: an error box has said so, and the asker, which may have gone
    ///         meanwhile, returns without touching anything.
    static std::optional<SoapReply> open(const QString& text);

    /// The document; empty when the text could not be parsed.
    const QDomDocument& document() const { return m_document; }

    /// @return the text of the first element of that name; empty when it is missing or empty.
    QString result(const char* element) const;

private:
    explicit SoapReply(const QString& text);

    QDomDocument m_document;
};
