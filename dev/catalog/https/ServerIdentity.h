#pragma once

#include <QSslCertificate>
#include <QSslKey>

namespace devcatalog
{

/// What a TLS server shows and signs with.
struct ServerIdentity {
    QSslCertificate certificate;
    QSslKey key;
};

} // namespace devcatalog
