#pragma once

#include <QPushButton>

class pvApplication_c;

/// Opens the host's help at the add-in's page.
class HelpButton : public QPushButton
{
    Q_OBJECT

public:
    /// The button is made without a parent; a layout adopts it.
    /// @param application the host; not owned, may be null.
    explicit HelpButton(pvApplication_c* application);

public slots:
    /// Web help where the host has it switched on, else the compiled help file. Failures are the host's.
    void OnHelpButtonClicked();

private:
    void openWebHelp();
    void openCompiledHelp();

    pvApplication_c* m_application;
};
