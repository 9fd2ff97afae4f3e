#pragma once

#include "dev/host/model/HostSettings.h"

#include <QMenu>

namespace devhost
{

/// The window's own menu: what the host reports to the add-in, to be chosen while it runs, and the
/// connection.
class HostMenu final : public QMenu
{
    Q_OBJECT

public:
    explicit HostMenu(const HostSettings& settings, QWidget* parent = nullptr);

    /// @return what is chosen; the add-in learns it at the next connect.
    const HostSettings& settings() const { return m_settings; }

signals:
    void darkThemeChosen(bool dark);
    /// What the add-in learns only at its next connect was chosen. @param consequence what it brings then.
    void nextConnectChosen(const QString& consequence);
    void reconnectChosen();
    void galleryChosen();
    void unsaidChosen();

private:
    void addLanguages();
    void addThemes();

    HostSettings m_settings;
};

} // namespace devhost
