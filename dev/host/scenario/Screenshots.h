#pragma once

#include <QDir>
#include <QString>

class QWidget;

namespace devhost
{

/// Numbered pictures of a window with the boxes and lists that are open in front of it.
class Screenshots
{
public:
    /// @param folder made where needed. @param window must outlive this.
    Screenshots(const QString& folder, QWidget& window);

    const QDir& folder() const { return m_folder; }
    /// Removes what an earlier tour left in the folder. @return whether pictures can be saved there.
    bool prepare();
    /// Saves a picture at the window's device pixel ratio. @return whether it could be written.
    bool save(int number, const QString& title) const;

private:
    QDir m_folder;
    QWidget& m_window;
};

} // namespace devhost
