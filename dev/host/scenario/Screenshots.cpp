#include "dev/host/scenario/Screenshots.h"

#include <QApplication>
#include <QFileInfo>
#include <QPainter>
#include <QPixmap>
#include <QRegularExpression>
#include <QWidget>

namespace devhost
{

namespace
{

constexpr int TitleHeight = 26;

/// @return the part of a file name: lower case, words joined by hyphens.
QString fileNameOf(const QString& title)
{
    QString name = title.toLower();
    name.replace(QRegularExpression("[^a-z0-9]+"), "-");
    return name.mid(name.startsWith('-') ? 1 : 0, 60).remove(QRegularExpression("-$"));
}

/// @return what is open in front of the window, from back to front.
QVector<QWidget*> windowsInFront(const QWidget& window)
{
    QVector<QWidget*> dialogs;
    QVector<QWidget*> popups;
    for (QWidget* other : QApplication::topLevelWidgets()) {
        if (other == &window || !other->isVisible())
            continue;
        (other->windowType() == Qt::Popup || other->windowType() == Qt::ToolTip ? popups : dialogs)
            .append(other);
    }
    return dialogs + popups;
}

bool hasTitle(const QWidget& window)
{
    return window.windowType() == Qt::Dialog || window.windowType() == Qt::Tool;
}

/// @return the window's place with the title that the window manager draws for it.
QRect placeOf(const QWidget& window)
{
    const QRect place = window.geometry();
    return hasTitle(window) ? place.adjusted(0, -TitleHeight, 0, 0) : place;
}

void drawWindow(QPainter& painter, QWidget& window)
{
    const QRect place = placeOf(window);
    const QPalette palette = window.palette();
    if (hasTitle(window)) {
        painter.fillRect(place, palette.color(QPalette::Mid));
        painter.setPen(palette.color(QPalette::WindowText));
        painter.drawText(place.adjusted(8, 0, -8, TitleHeight - place.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, window.windowTitle());
    }
    painter.drawPixmap(window.geometry().topLeft(), window.grab());
    painter.setPen(palette.color(QPalette::Dark));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

} // namespace

Screenshots::Screenshots(const QString& folder, QWidget& window)
    : m_folder(QFileInfo(folder).absoluteFilePath()), m_window(window)
{
}

bool Screenshots::prepare()
{
    if (!m_folder.mkpath("."))
        return false;
    for (const QString& old : m_folder.entryList({"[0-9][0-9]-*.png"}, QDir::Files))
        m_folder.remove(old);
    return QFileInfo(m_folder.path()).isWritable();
}

bool Screenshots::save(int number, const QString& title) const
{
    const QVector<QWidget*> front = windowsInFront(m_window);
    QRect place = m_window.geometry();
    for (const QWidget* window : front)
        place |= placeOf(*window);

    QPixmap picture(place.size() * m_window.devicePixelRatioF());
    picture.setDevicePixelRatio(m_window.devicePixelRatioF());
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    painter.translate(-place.topLeft());
    painter.drawPixmap(m_window.geometry().topLeft(), m_window.grab());
    for (QWidget* window : front)
        drawWindow(painter, *window);
    painter.end();
    const QString name = QString("%1-%2.png").arg(number, 2, 10, QChar('0')).arg(fileNameOf(title));
    return picture.save(m_folder.filePath(name));
}

} // namespace devhost
