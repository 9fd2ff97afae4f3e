#pragma once

#include <QObject>
#include <QString>

class QNetworkReply;

/// A service session: gets the API key when it is made, and logs the user in. Keeps no credentials but the
/// two texts it was given; key and token go to the process-wide ApiKey and UserToken.
class DataStorage : public QObject
{
    Q_OBJECT

public:
    /// Starts the bootstrap at once: ServiceLogin, then GenerateApiKeyByDescription, whose result is ApiKey.
    DataStorage();

    void SetUserId(QString userId);
    void SetPassword(QString password);

    /// Sends UserLogin with the user id and password set before; the outcome is shown in a box.
    void UserLogin();

public slots:
    /// Signs the service account in; reply to SetSessionID.
    void ServiceLogin();
    /// Turns the session id of a ServiceLogin reply, empty or not, into an API key; reply to GetAPIKey.
    void SetSessionID(QNetworkReply* reply);
    /// Stores the result of a GenerateApiKeyByDescription reply as ApiKey, also when it is empty.
    void GetAPIKey(QNetworkReply* reply);
    /// Stores the result of a UserLogin reply as UserToken, also when it is empty, and reports the login.
    void SetUserToken(QNetworkReply* reply);

private:
    QString m_userId;
    QString m_password;
    QString m_spare; // not used
};
