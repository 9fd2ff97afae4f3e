#pragma once

#include <QAbstractTableModel>
#include <QPointer>

class CookieJar;

/// Shows the cookies of a jar, one a row: website, name, path, secure, expires, contents. Rows can be
/// removed.
class CookieModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// @param cookieJar borrowed; may be null, and may go before the model does: the model is empty then.
    explicit CookieModel(CookieJar* cookieJar, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    /// Takes the cookies out of the jar as well. @return false for rows that are not there.
    bool removeRows(int row, int count, const QModelIndex& parent = {}) override;

private slots:
    void cookiesChanged();

private:
    QPointer<CookieJar> m_cookieJar;
};
