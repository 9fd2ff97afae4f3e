#include "service/CookieModel.h"

#include "service/CookieJar.h"

#include <QDateTime>
#include <QFont>
#include <QFontMetrics>
#include <QNetworkCookie>
#include <QSize>

namespace
{

enum Column { Website, Name, Path, Secure, Expires, Contents, columns };

QFont cellFont()
{
    QFont font;
    font.setPointSize(10);
    return font;
}

QVariant content(const QNetworkCookie& cookie, int column)
{
    switch (column) {
    case Website:
        return cookie.domain();
    case Name:
        return cookie.name();
    case Path:
        return cookie.path();
    case Secure:
        return cookie.isSecure();
    case Expires:
        return cookie.expirationDate();
    case Contents:
        return cookie.value();
    default:
        return {};
    }
}

QString title(int column)
{
    switch (column) {
    case Website:
        return CookieModel::tr("Website");
    case Name:
        return CookieModel::tr("Name");
    case Path:
        return CookieModel::tr("Path");
    case Secure:
        return CookieModel::tr("Secure");
    case Expires:
        return CookieModel::tr("Expires");
    case Contents:
        return CookieModel::tr("Contents");
    default:
        return {};
    }
}

/// Room for a title and for half a line above and below it.
QSize titleSize(int column)
{
    const QFontMetrics metrics(cellFont());
    const int line = metrics.height();
    return {metrics.horizontalAdvance(title(column)) + 2 * line, 2 * line};
}

} // namespace

CookieModel::CookieModel(CookieJar* cookieJar, QObject* parent)
    : QAbstractTableModel(parent), m_cookieJar(cookieJar)
{
    if (m_cookieJar) {
        connect(m_cookieJar, SIGNAL(cookiesChanged()), this, SLOT(cookiesChanged()));
        connect(m_cookieJar, SIGNAL(destroyed()), this, SLOT(cookiesChanged()));
        m_cookieJar->load();
    }
}

int CookieModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || !m_cookieJar ? 0 : m_cookieJar->allCookies().size();
}

int CookieModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : columns;
}

QVariant CookieModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return content(m_cookieJar->allCookies().at(index.row()), index.column());
    case Qt::FontRole:
        return cellFont();
    default:
        return {};
    }
}

QVariant CookieModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (section < 0 || section >= columns)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return title(section);
    case Qt::SizeHintRole:
        return titleSize(section);
    default:
        return {};
    }
}

bool CookieModel::removeRows(int row, int count, const QModelIndex& parent)
{
    const int rows = rowCount(parent);
    if (row < 0 || count < 1 || row >= rows || count > rows - row)
        return false;
    beginRemoveRows(parent, row, row + count - 1);
    QList<QNetworkCookie> cookies = m_cookieJar->allCookies();
    cookies.erase(cookies.begin() + row, cookies.begin() + row + count);
    m_cookieJar->setAllCookies(cookies);
    endRemoveRows();
    return true;
}

void CookieModel::cookiesChanged()
{
    beginResetModel();
    endResetModel();
}
