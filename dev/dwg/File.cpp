#include "dev/dwg/File.h"

#include "dev/dwg/BitWriter.h"
#include "dev/dwg/Crc.h"
#include "dev/dwg/Document.h"
#include "dev/dwg/ObjectMap.h"
#include "dev/dwg/Text.h"

#include <array>
#include <cstddef>
#include <vector>

namespace dwg
{

namespace
{

using Sentinel = std::array<unsigned char, 16>;

constexpr Sentinel AfterFileHeader = {0x95, 0xA0, 0x4E, 0x28, 0x99, 0x82, 0x1A, 0xE5,
                                      0x5E, 0x41, 0xE0, 0x5F, 0x9D, 0x3A, 0x4D, 0x00};
constexpr Sentinel HeaderSentinel = {0xCF, 0x7B, 0x1F, 0x23, 0xFD, 0xDE, 0x38, 0xA9,
                                     0x5F, 0x7C, 0x68, 0xB8, 0x4E, 0x6D, 0x33, 0x5F};
constexpr Sentinel ClassesSentinel = {0x8D, 0xA1, 0xC4, 0xB8, 0xC4, 0xA9, 0xF8, 0xC5,
                                      0xC0, 0xDC, 0xF4, 0x5F, 0xE7, 0xCF, 0xB6, 0x8A};
constexpr Sentinel PreviewSentinel = {0x1F, 0x25, 0x6D, 0x07, 0xD4, 0x36, 0x28, 0x28,
                                      0x9D, 0x57, 0xCA, 0x3F, 0x9D, 0x44, 0x10, 0x2B};
constexpr Sentinel SecondHeaderSentinel = {0xD4, 0x7B, 0x21, 0xCE, 0x28, 0x93, 0x9F, 0xBF,
                                           0x53, 0x24, 0x40, 0x09, 0x12, 0x3C, 0xAA, 0x01};

/// Release and maintenance release of the program that is said to have written the file.
constexpr unsigned WriterRelease = 0x17;
constexpr unsigned WriterMaintenance = 0x06;

/// The sections that the file header locates, by their number there.
enum Section : std::size_t { Header, Classes, ObjectMap, FreeSpace, Template, AuxHeader, sectionCount };

struct Location {
    std::uint32_t address = 0;
    std::uint32_t size = 0;
};

using Locations = std::array<Location, sectionCount>;

std::string toBytes(const Sentinel& sentinel)
{
    return std::string(sentinel.begin(), sentinel.end());
}

/// A sentinel, the data, and the same sentinel with all bits turned.
std::string betweenSentinels(const Sentinel& sentinel, const std::string& data)
{
    std::string end;
    for (const unsigned char byte : sentinel)
        end.push_back(static_cast<char>(byte ^ 0xFFU));
    return toBytes(sentinel) + data + end;
}

/// The HEADER and the CLASSES section: size, data, check sum.
std::string checkedSection(const Sentinel& sentinel, const std::string& data)
{
    BitWriter section;
    section.rawLong(static_cast<std::uint32_t>(data.size()));
    section.rawBytes(data);
    section.rawShort(crc(section.bytes()));
    return betweenSentinels(sentinel, section.bytes());
}

void writeVersion(BitWriter& data)
{
    data.rawBytes("AC1015");
    data.rawBytes(std::string(5, '\0'));
    data.rawChar(WriterMaintenance);
    data.rawChar(1);
}

std::string fileHeader(std::uint32_t previewAddress, const Locations& locations)
{
    constexpr unsigned crcMaskForSixSections = 0x8461;
    BitWriter data;
    writeVersion(data);
    data.rawLong(previewAddress);
    data.rawChar(WriterRelease);
    data.rawChar(WriterMaintenance);
    data.rawShort(CodePage);
    data.rawLong(sectionCount);
    for (std::size_t number = 0; number < locations.size(); ++number) {
        data.rawChar(static_cast<unsigned>(number));
        data.rawLongs({locations.at(number).address, locations.at(number).size});
    }
    data.rawShort(crc(data.bytes(), 0) ^ crcMaskForSixSections);
    return data.bytes() + toBytes(AfterFileHeader);
}

std::string auxHeader(Handle firstUnusedHandle)
{
    constexpr unsigned release = WriterRelease;
    constexpr unsigned maintenance = WriterMaintenance;
    BitWriter data;
    data.rawChar(0xFF);
    data.rawShort(0x0177);
    data.rawShorts({release, maintenance});
    data.rawLongs({1, 0xFFFFFFFF}); // saved once
    data.rawShorts({1, 0, 0, 0});
    data.rawShorts({release, maintenance, release, maintenance});
    data.rawShorts({5, 0x893, 5, 0x893, 0, 1});
    data.rawLongs({0, 0, 0, 0, 0});
    data.rawLongs({FileDate.julianDay, FileDate.milliseconds}); // created
    data.rawLongs({FileDate.julianDay, FileDate.milliseconds}); // saved
    data.rawLongs({firstUnusedHandle, 0});
    data.rawShorts({0, 1});
    data.rawLongs({0, 0, 0, 1, 0, 0, 0, 0});
    return data.bytes();
}

std::string emptyPreview()
{
    BitWriter data;
    data.rawLong(1);
    data.rawChar(0); // no pictures
    return betweenSentinels(PreviewSentinel, data.bytes());
}

std::string freeSpace(std::size_t objectCount, std::uint32_t objectsAddress)
{
    BitWriter data;
    data.rawLongs({0, static_cast<std::uint32_t>(objectCount)});
    data.rawLongs({FileDate.julianDay, FileDate.milliseconds});
    data.rawLong(objectsAddress);
    data.rawChar(4);
    data.rawLongs({0x32, 0, 0x64, 0, 0x200, 0, 0xFFFFFFFF, 0});
    return data.bytes();
}

/// The objects from which all others can be reached.
void writeRootHandles(BitWriter& data, Handle firstUnusedHandle)
{
    const std::array<Handle, 14> roots = {firstUnusedHandle,
                                          handles::BlockControl,
                                          handles::LayerControl,
                                          handles::StyleControl,
                                          handles::LinetypeControl,
                                          handles::ViewControl,
                                          handles::UcsControl,
                                          handles::ViewportControl,
                                          handles::ApplicationControl,
                                          handles::DimensionStyleControl,
                                          handles::ViewportHeaderControl,
                                          handles::NamedObjects,
                                          handles::MultilineStyles,
                                          handles::Groups};
    data.bitShort(static_cast<int>(roots.size()));
    for (std::size_t index = 0; index < roots.size(); ++index)
        data.countedHandle(static_cast<unsigned>(index), roots.at(index));
}

/// A second copy of the file header near the end of the file, for repair.
std::string secondHeader(std::uint32_t address, const Locations& locations, Handle firstUnusedHandle)
{
    BitWriter body;
    body.bitLong(address);
    writeVersion(body);
    body.bitShort(static_cast<int>(WriterMaintenance << 8U | WriterRelease));
    body.rawShort(CodePage);
    body.bitShort(static_cast<int>(sectionCount));
    for (std::size_t number = 0; number < locations.size(); ++number) {
        const Location location = number == Template ? Location{} : locations.at(number);
        body.rawChar(static_cast<unsigned>(number));
        body.bitLong(location.address);
        body.bitLong(location.size);
    }
    writeRootHandles(body, firstUnusedHandle);

    constexpr std::size_t sizeField = 4;
    constexpr std::size_t checkSum = 2;
    const std::string trailer(8, '\0');
    BitWriter data;
    data.rawLong(static_cast<std::uint32_t>(sizeField + body.bytes().size() + checkSum + trailer.size()));
    data.rawBytes(body.bytes());
    data.rawShort(crc(data.bytes()));
    data.rawBytes(trailer);
    return betweenSentinels(SecondHeaderSentinel, data.bytes());
}

std::string measurementTemplate()
{
    BitWriter data;
    data.rawShorts({0, 1}); // no text; MEASUREMENT is metric
    return data.bytes();
}

/// The file while it grows: each part is appended and its place noted.
class GrowingFile
{
public:
    explicit GrowingFile(std::size_t reserved) : m_bytes(reserved, '\0') {}

    Location append(const std::string& bytes)
    {
        const Location location = {end(), static_cast<std::uint32_t>(bytes.size())};
        m_bytes += bytes;
        return location;
    }

    std::uint32_t end() const { return static_cast<std::uint32_t>(m_bytes.size()); }

    std::string finish(const std::string& header) { return m_bytes.replace(0, header.size(), header); }

private:
    std::string m_bytes;
};

std::vector<MapEntry> appendObjects(GrowingFile& file, const Records& records)
{
    std::vector<MapEntry> entries;
    for (const auto& [handle, record] : records)
        entries.push_back({handle, file.append(record).address});
    return entries;
}

} // namespace

std::string layOutDwgFile(const FileParts& parts)
{
    constexpr std::size_t gapBeforeObjects = 512;
    Locations locations;
    GrowingFile file(fileHeader(0, locations).size());
    locations[AuxHeader] = file.append(auxHeader(parts.firstUnusedHandle));
    const Location preview = file.append(emptyPreview());
    locations[Header] = file.append(checkedSection(HeaderSentinel, parts.headerVariables));
    locations[Classes] = file.append(checkedSection(ClassesSentinel, parts.classes));
    file.append(std::string(gapBeforeObjects, '\0'));
    const std::uint32_t objectsAddress = file.end();
    const std::vector<MapEntry> entries = appendObjects(file, parts.records);
    locations[ObjectMap] = file.append(makeDwgObjectMap(entries));
    locations[FreeSpace] = file.append(freeSpace(entries.size(), objectsAddress));
    // The second header has the first one's locations, but never the template's, which follows it.
    file.append(secondHeader(file.end(), locations, parts.firstUnusedHandle));
    locations[Template] = file.append(measurementTemplate());
    return file.finish(fileHeader(preview.address, locations));
}

} // namespace dwg
