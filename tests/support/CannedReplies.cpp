#include "tests/support/CannedReplies.h"

#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>

namespace test
{

namespace
{

QByteArray element(const QByteArray& name, const QString& text)
{
    return "<" + name + ">" + text.toHtmlEscaped().toUtf8() + "</" + name + ">";
}

/// The fields of a hit have a place, not a name.
QByteArray searchItem(const Hit& hit)
{
    QStringList fields;
    for (int i = 0; i < 18; ++i)
        fields.append("field " + QString::number(i));
    fields[0] = hit.name;
    fields[6] = hit.description;
    fields[7] = hit.image;
    fields[16] = hit.supplier;
    QByteArray item;
    for (int i = 0; i < fields.size(); ++i)
        item += element("Field" + QByteArray::number(i), fields[i]);
    return "<ISearchItem>" + item + "</ISearchItem>";
}

} // namespace

QVector<Hit> hits(int count)
{
    QVector<Hit> made;
    for (int i = 1; i <= count; ++i)
        made.append({"Part " + QString::number(i)});
    return made;
}

ScriptedReply searchReply(const QVector<Hit>& hits, const QString& count)
{
    QByteArray content = element("ActualItemCount", count.isNull() ? QString::number(hits.size()) : count);
    for (const Hit& hit : hits)
        content += searchItem(hit);
    return ScriptedReply::xml(ScriptedReply::envelope(content));
}

ScriptedReply configurationsReply(const QStringList& names)
{
    QByteArray content;
    for (const QString& name : names)
        content +=
            "<IConfiguration>" + element("Name", name) + element("Type", "other") + "</IConfiguration>";
    return ScriptedReply::xml(ScriptedReply::envelope(content));
}

QByteArray pngPicture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient gradient(0, 0, size.width(), size.height());
    gradient.setColorAt(0, Qt::red);
    gradient.setColorAt(1, Qt::blue);
    painter.fillRect(image.rect(), gradient);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

ScriptedReply pictureReply(const QByteArray& bytes)
{
    return ScriptedReply::status(200, bytes, "image/png");
}

} // namespace test
