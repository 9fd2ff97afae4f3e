#include "service/DataStorage.h"

#include "common/MessageBoxes.h"
#include "service/SessionValues.h"
#include "service/SoapReply.h"
#include "service/SoapRequest.h"

#include <QDebug>

#include <utility>

DataStorage::DataStorage()
{
    ServiceLogin();
}

void DataStorage::SetUserId(QString userId)
{
    m_userId = std::move(userId);
}

void DataStorage::SetPassword(QString password)
{
    m_password = std::move(password);
}

void DataStorage::UserLogin()
{
    sendSoapRequest(UserLoginOperation, {{"apiKey", ApiKey}, {"userId", m_userId}, {"password", m_password}},
                    this, SLOT(SetUserToken(QNetworkReply*)));
}

void DataStorage::ServiceLogin()
{
    sendSoapRequest(ServiceLoginOperation, {}, this, SLOT(SetSessionID(QNetworkReply*)));
}

void DataStorage::SetSessionID(QNetworkReply* reply)
{
    const QString text = takeText(reply);
    qDebug() << "data" << text;
    const std::optional<SoapReply> answer = SoapReply::open(text);
    if (!answer)
        return;
    sendSoapRequest(GenerateApiKeyOperation,
                    {{"sessionId", answer->result(ServiceLoginOperation.resultElement)}}, this,
                    SLOT(GetAPIKey(QNetworkReply*)));
}

void DataStorage::GetAPIKey(QNetworkReply* reply)
{
    const QString text = takeText(reply);
    qDebug() << "data" << text;
    const std::optional<SoapReply> answer = SoapReply::open(text);
    if (!answer)
        return;
    ApiKey = answer->result(GenerateApiKeyOperation.resultElement);
}

void DataStorage::SetUserToken(QNetworkReply* reply)
{
    const std::optional<SoapReply> answer = SoapReply::open(takeText(reply));
    if (!answer)
        return;
    UserToken = answer->result(UserLoginOperation.resultElement);
    showInformationBox(UserToken.isEmpty() ? QLatin1String("Login is not successful.")
                                           : QLatin1String("Login is successful."));
}
