#include "tests/addin/LoadedAddIn.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImageReader>
#include <QResource>
#include <QSet>
#include <QTest>

namespace
{

constexpr int AnySize = -1;

/// A file of the bundle.
struct Entry {
    const char* path;
    int size; ///< In bytes; of a request template with a service host of 24 characters.
};

const Entry entries[] = {
    {"Login.xml", 438},
    {"TokenXMLFile.xml", 538},
    {"APIKeyXML.xml", 469},
    {"Searchcatalog.xml", 582},
    {"ConfigInfo.xml", 493},
    {"ConfigParams.xml", 536},
    {"download.xml", 922},
    {"ModelDetail.xml", 495},
    {"output.xml", 0},
    {"Resource/3DPH_32x-32.svg", AnySize},
    {"Resource/Dark/3DPH-32.svg", AnySize},
    {"Resource/3DPH_32x.svg", AnySize},
    {"Resource/3DPH_32x-20.svg", AnySize},
    {"Resource/3DPH_32x-48.svg", AnySize},
    {"Resource/Dark/3DPH-16.svg", AnySize},
    {"Resource/Dark/3DPH-20.svg", AnySize},
    {"Resource/Dark/3DPH-48.svg", AnySize},
    {"Resource/nav-back-20.svg", AnySize},
    {"Resource/expanded.png", AnySize},
    {"Resource/collapsed.png", AnySize},
    {"Resource/search.svg", AnySize},
    {"Resource/CheckBox_checked.PNG", AnySize},
    {"Resource/Help.PNG", AnySize},
    {"Resource/PV3DPartHarbor.qss", AnySize},
    {"Resource/PV3DPartHarborDarkMode.qss", AnySize},
    {"3DPH_en.qm", 16},
    {"3DPH_chinese.qm", AnySize},
    {"3DPH_chinese-simple.qm", AnySize},
    {"3DPH_czech.qm", AnySize},
    {"3DPH_french.qm", AnySize},
    {"3DPH_german.qm", AnySize},
    {"3DPH_italian.qm", AnySize},
    {"3DPH_japanese.qm", AnySize},
    {"3DPH_korean.qm", AnySize},
    {"3DPH_polish.qm", AnySize},
    {"3DPH_portugese-brazil.qm", AnySize},
    {"3DPH_russian.qm", AnySize},
    {"3DPH_spanish.qm", AnySize},
    {"3DPH_turkish.qm", AnySize},
};

/// @return the files below a folder, by their path in it.
QStringList filesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator iterator(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (iterator.hasNext())
        files.append(QDir(folder).relativeFilePath(iterator.next()));
    files.sort();
    return files;
}

QByteArray contents(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// What the source folder puts into the bundle: templates lose their suffix, translations are compiled.
QStringList bundledSources()
{
    const QString folder = RESOURCES_FOLDER;
    QStringList files{"output.xml"};
    for (const QString& name : filesBelow(folder + "/templates"))
        files.append(name.chopped(static_cast<int>(qstrlen(".in"))));
    for (const QString& name : filesBelow(folder + "/translations"))
        files.append(name.chopped(static_cast<int>(qstrlen("ts"))) + "qm");
    for (const QString& name : filesBelow(folder + "/Resource"))
        files.append("Resource/" + name);
    files.sort();
    return files;
}

} // namespace

class ResourceBundleTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();

    void holdsTheListedFilesAndNoOther();
    void file_data();
    void file();
    void requestTemplatesHaveTheirExactForm();

private:
    std::unique_ptr<test::LoadedAddIn> m_addIn;
};

void ResourceBundleTest::initTestCase()
{
    QVERIFY(!QFile::exists(":/3DPH/Login.xml"));
    m_addIn = std::make_unique<test::LoadedAddIn>();
    QVERIFY(QFile::exists(":/3DPH/Login.xml"));
}

void ResourceBundleTest::cleanupTestCase()
{
    QCOMPARE(m_addIn->leave(), QStringList());
    m_addIn.reset();
    QVERIFY(!QFile::exists(":/3DPH/Login.xml"));
    QCOMPARE(filesBelow(":/3DPH"), QStringList());
}

void ResourceBundleTest::holdsTheListedFilesAndNoOther()
{
    QStringList listed;
    for (const Entry& entry : entries)
        listed.append(entry.path);
    listed.sort();
    QCOMPARE(filesBelow(":/3DPH"), listed);
    QCOMPARE(bundledSources(), listed);
    for (const char* sheet : {"PV3DPartHarbor.qss", "PV3DPartHarborDarkMode.qss"})
        QVERIFY(!QFile::exists(QString(":/Images/Resources/") + sheet));
}

void ResourceBundleTest::file_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("size");
    for (const Entry& entry : entries)
        QTest::newRow(entry.path) << QString(":/3DPH/") + entry.path << entry.size;
}

void ResourceBundleTest::file()
{
    QFETCH(QString, path);
    QFETCH(int, size);
    QCOMPARE(QResource(path).compressionAlgorithm(), QResource::NoCompression);
    const QByteArray bytes = contents(path);
    if (size == AnySize) {
        QVERIFY(!bytes.isEmpty());
    } else {
        const QByteArray host = test::ScriptedCatalog::host().toUtf8();
        QCOMPARE(bytes.size() + bytes.count(host) * (24 - host.size()), size);
    }

    const QString format = QFileInfo(path).suffix().toLower();
    if (format == "svg" || format == "png") {
        QImageReader reader(path, format.toLatin1());
        QVERIFY2(!reader.read().isNull(), qPrintable(reader.errorString()));
    } else if (format == "qss") {
        QCOMPARE(contents(path), contents(path.replace(":/3DPH", RESOURCES_FOLDER)));
    }
}

void ResourceBundleTest::requestTemplatesHaveTheirExactForm()
{
    for (const QString& name : filesBelow(":/3DPH").filter(".xml")) {
        QByteArray bytes = contents(":/3DPH/" + name);
        QVERIFY2(!bytes.endsWith('\n'), qPrintable(name));
        bytes.replace("\r\n", "");
        QVERIFY2(!bytes.contains('\n') && !bytes.contains('\r') && !bytes.contains('@'), qPrintable(name));
    }
    QVERIFY(contents(":/3DPH/download.xml")
                .contains("<inputParameters>\r\n        \r\n      </inputParameters>"));
}

QTEST_MAIN(ResourceBundleTest)
#include "ResourceBundleTest.moc"
