#include "panel/ClickableLabel.h"
#include "panel/TableItem.h"
#include "service/PictureThread.h"
#include "tests/panel/PanelFixture.h"
#include "tests/support/CannedReplies.h"

#include <QBuffer>
#include <QImage>
#include <QImageWriter>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QtEndian>

using test::PanelFixture;
using test::pictureReply;
using test::pngPicture;
using test::ScriptedReply;
using test::SearchOperationName;

namespace
{

const QString PicturePath = "/pictures/part.png";
constexpr QSize PictureSize(60, 90);

QPixmap pictureOf(const QLabel* label)
{
    return label->pixmap(Qt::ReturnByValue);
}

/// @return a red picture as a file of that format.
QByteArray picture(const char* format, const QSize& size = PictureSize, const QString& comment = QString())
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QImageWriter writer(&buffer, format);
    writer.setProgressiveScanWrite(true);
    writer.setText("Comment", comment);
    writer.write(image);
    return bytes;
}

/// @return a bitmap whose rows begin at its top, which its header tells by a negative height.
QByteArray topDownBitmap()
{
    QByteArray bytes = picture("BMP");
    qToLittleEndian<qint32>(-90, bytes.data() + 22);
    return bytes;
}

/// @return a picture that is decoded over and over.
QByteArray photographOfManyScans()
{
    QByteArray bytes = picture("JPG");
    const int lastScan = bytes.lastIndexOf("\xFF\xDA");
    return bytes.insert(lastScan, bytes.mid(lastScan).chopped(2).repeated(100));
}

/// @return an icon file that says it is small, around a picture that is not.
QByteArray iconAround(const QByteArray& png)
{
    QByteArray bytes("\0\0\1\0\1\0\x20\x20\0\0\1\0\x20\0\0\0\0\0\x16\0\0\0", 22);
    qToLittleEndian<qint32>(png.size(), bytes.data() + 14);
    return bytes + png;
}

/// @return a small file that takes 1.6 GB and seconds to decode.
QByteArray hugePicture()
{
    QImage image(20000, 20000, QImage::Format_Mono);
    image.fill(0);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

} // namespace

/// Pictures that come from the service, as thumbnail of a row and as preview of a detail page.
class PicturesTest : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_panel.reset(); }

    void thumbnails_data();
    void thumbnails();
    void previewFillsItsLabel_data();
    void previewFillsItsLabel();
    void previewOfAHiddenPage();
    void unusablePictures_data();
    void unusablePictures();
    void lastToGoDoesNotWaitForAll();

private:
    QPushButton* thumbnail() const
    {
        return m_panel->shown<TableItem>()->findChild<QPushButton*>("iconpushButton");
    }
    void openPart(const ScriptedReply& picture);

    std::unique_ptr<PanelFixture> m_panel;
};

void PicturesTest::init()
{
    m_panel = std::make_unique<PanelFixture>();
    m_panel->service().setReply(SearchOperationName, test::searchReply(test::hits(1)));
}

/// Opens a part with that picture for its thumbnail and its preview, and waits for the latter's end.
void PicturesTest::openPart(const ScriptedReply& picture)
{
    m_panel->service().setReply(PicturePath, picture);
    m_panel->openFirstPart();
    auto* preview = m_panel->shown<ClickableLabel>();
    QTRY_VERIFY(preview->hasScaledContents());
}

void PicturesTest::thumbnails_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QSize>("size");
    for (const char* format : {"PNG", "JPG", "BMP"})
        QTest::addRow("%s", format) << picture(format) << PictureSize;
    QTest::addRow("bitmap from its top") << topDownBitmap() << PictureSize;
    QTest::addRow("texts are not read")
        << picture("PNG", PictureSize, QString(10'000'000, 'x')) << PictureSize;
    QTest::addRow("as large as it is shown") << picture("PNG", {80, 130}) << QSize(80, 130);
    QTest::addRow("wide") << picture("PNG", {256, 128}) << QSize(80, 40);
    QTest::addRow("high") << picture("PNG", {100, 1300}) << QSize(10, 130);
    QTest::addRow("reduced") << picture("PNG", {4000, 4000}) << QSize(80, 80);
    QTest::addRow("line") << picture("PNG", {100000, 1}) << QSize(80, 1);
}

void PicturesTest::thumbnails()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QSize, size);
    m_panel->service().setReply(PicturePath, pictureReply(bytes));
    m_panel->showResults();
    QTRY_VERIFY(!thumbnail()->icon().isNull());
    QCOMPARE(thumbnail()->icon().availableSizes(), QList<QSize>({size}));
    const QImage shown = thumbnail()->icon().pixmap(size).toImage();
    QVERIFY(QColor(shown.pixel(shown.rect().center())).red() > 250);
    QVERIFY(!bytes.startsWith("\x89PNG") || shown.textKeys().isEmpty());
    QCOMPARE(thumbnail()->iconSize(), QSize(80, 130));
    QTRY_VERIFY(thumbnail()->visibleRegion().boundingRect().height() >= 130); // nothing of it is cut off
}

void PicturesTest::previewFillsItsLabel_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addRow("small") << QSize(30, 20);
    QTest::addRow("large") << QSize(4000, 4000);
    QTest::addRow("wide") << QSize(900, 300);
    QTest::addRow("tall") << QSize(100, 700);
}

void PicturesTest::previewFillsItsLabel()
{
    QFETCH(QSize, size);
    m_panel->window().resize(400, 1100);
    m_panel->showResults();
    QTRY_VERIFY(!thumbnail()->icon().isNull()); // or it would change the layout later
    m_panel->service().setReply(PicturePath, pictureReply(pngPicture(size)).held());
    m_panel->openPart(0);
    auto* label = m_panel->shown<ClickableLabel>();
    const QWidget* const frame = label->parentWidget();
    QCoreApplication::processEvents();
    QTRY_COMPARE(frame->geometry().bottom(), frame->parentWidget()->rect().bottom()); // takes what is left
    const QSize room = label->size();
    QVERIFY(room.width() > 300 && room.height() >= 200);
    QTRY_COMPARE(m_panel->service().heldCount(), 1);
    m_panel->service().releaseAll();
    QTRY_VERIFY(!pictureOf(label).isNull());
    QCOMPARE(pictureOf(label).size(), size.scaled(room, Qt::KeepAspectRatio));
    QVERIFY(label->hasScaledContents());
    QCOMPARE(label->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(label->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    // Shown as it is, unless it is less high than the label may be.
    QTRY_COMPARE(label->contentsRect().size(), pictureOf(label).size().expandedTo(QSize(0, 200)));
}

void PicturesTest::previewOfAHiddenPage()
{
    m_panel->service().setReply(PicturePath, pictureReply(pngPicture({300, 300})).held());
    m_panel->showResults();
    QTest::mouseClick(thumbnail(), Qt::LeftButton);
    auto* label = m_panel->shown<ClickableLabel>();
    m_panel->window().setCurrentIndex(0); // before anything of the page has been laid out
    QTRY_COMPARE(m_panel->service().heldCount(), 2);
    m_panel->service().releaseAll();
    QTRY_VERIFY(!pictureOf(label).isNull());
    m_panel->window().setCurrentIndex(1);
    QTRY_VERIFY(label->height() >= 200);
    QVERIFY(pictureOf(label).width() >= 200);
}

void PicturesTest::unusablePictures_data()
{
    const QByteArray png = pngPicture({60, 90});
    QTest::addColumn<ScriptedReply>("reply");
    QTest::addRow("empty") << pictureReply({});
    QTest::addRow("text") << pictureReply("no picture");
    QTest::addRow("cut image") << pictureReply(png.left(png.size() / 2));
    QTest::addRow("cut photograph") << pictureReply(picture("JPG").chopped(2));
    QTest::addRow("cut bitmap") << pictureReply(picture("BMP").chopped(1));
    QTest::addRow("head of an image") << pictureReply(png.left(30));
    QTest::addRow("huge") << pictureReply(hugePicture());
    QTest::addRow("huge in an icon") << pictureReply(iconAround(hugePicture()));
    QTest::addRow("many scans") << pictureReply(photographOfManyScans());
    QTest::addRow("vectors") << pictureReply("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'>"
                                             "<rect width='9' height='9'/></svg>");
}

void PicturesTest::unusablePictures()
{
    QFETCH(ScriptedReply, reply);
    openPart(reply);
    QVERIFY(thumbnail()->icon().isNull());
    auto* preview = m_panel->shown<ClickableLabel>();
    QVERIFY(pictureOf(preview).isNull());

    // The drawing can still be had.
    QTRY_VERIFY(preview->height() >= 200);
    QVERIFY(preview->width() >= 200);
    m_panel->clickPreview();
    QCOMPARE(m_panel->boxTexts(), QStringList("Please Login to 3DPH to Download."));
}

void PicturesTest::lastToGoDoesNotWaitForAll()
{
    m_panel.reset();
    const QByteArray large = picture("PNG", {4000, 4000});
    QTimer first;
    QTimer second;
    auto pictures = PictureThread::shared();
    QCOMPARE(PictureThread::shared(), pictures);
    pictures->decode(large, MaximumPictureSize, &first, SLOT(start()));
    pictures->decode(large, MaximumPictureSize, &second, SLOT(start()));
    pictures.reset();
    QCoreApplication::processEvents();
    QVERIFY(!second.isActive()); // its picture was not decoded
}

QTEST_MAIN(PicturesTest)
#include "PicturesTest.moc"
