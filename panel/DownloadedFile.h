#pragma once

#include <QFile>
#include <QString>

/// Suffix of the next downloaded file's name, process-wide. Starts at 0; DrawingDownload counts it up with
/// each download that it starts.
extern int g_downloadCounter;

/// A downloaded drawing in the host's current directory. It removes itself when its owner goes, whatever
/// happens; a file that could not be opened is left alone.
class DownloadedFile
{
public:
    /// Opens the file for reading and writing; what is in it stays.
    /// @param name the file's name, without folders.
    explicit DownloadedFile(const QString& name);
    ~DownloadedFile();
    DownloadedFile(const DownloadedFile&) = delete;
    DownloadedFile& operator=(const DownloadedFile&) = delete;

    bool isOpen() const { return m_file.isOpen(); }
    /// Appends bytes. @return whether the disk took all of them.
    bool write(const QByteArray& bytes) { return m_file.write(bytes) == bytes.size(); }
    /// Puts everything written where other readers of the file see it. @return whether all of it is there.
    bool flush() { return m_file.flush(); }
    /// @return the file's absolute path.
    QString path() const { return m_file.fileName(); }

private:
    QFile m_file;
};

/// The name that a drawing's address asks for: the last part of its path, "index.html" where that is empty.
/// What any system takes for a folder or a drive is cut off, so the file stays where it is made; so is what
/// stands before a control character, which no system would keep.
QString fileNameOf(const QString& address);

/// The name a drawing is downloaded under: without ".dwg", with the counter and with ".dwg" again.
QString numberedFileName(const QString& fileName, int counter);
