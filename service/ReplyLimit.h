#pragma once

#include <QObject>

class QNetworkReply;

/// Ends a reply whose body grows beyond a limit. The network layer keeps the whole body in memory until it is
/// read, and a service may send more than there is. To its asker such a reply is a failed one without a body.
/// Of replies with status 401 or 407 Qt tells nothing before they are complete, nor of a reply's
/// header lines: these it cannot end.
///
/// Owned by the asker, not by the reply: the network manager, and with it the reply, may outlive the add-in
/// by one turn of the event loop. Goes by itself with the manager.
class ReplyLimit : public QObject
{
    Q_OBJECT

public:
    /// @param reply watched from here on; it must have come from a network manager.
    /// @param maximum the bytes that it may bring.
    /// @param asker the owner.
    ReplyLimit(QNetworkReply* reply, qint64 maximum, QObject* asker);

private slots:
    void check();

private:
    QNetworkReply* m_reply;
    qint64 m_maximum;
};
